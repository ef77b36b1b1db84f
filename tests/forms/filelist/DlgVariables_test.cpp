#include "filelist/forms/DlgVariables.h"

#include "filelist/forms/DlgChVariables.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

using Use = DlgVariables::Use;

class DlgVariablesTest : public WindowTest {
protected:
    void SetUp() override
    {
        session.project.ProjectName.ProjectName = "Ordlistan";
        session.project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\Ordlistan";
    }

    QTreeWidgetItem& RowOf(DlgVariables& form, const char* variable)
    {
        const auto found = form.ListViewVariables->findItems(variable, Qt::MatchExactly);
        if (found.size() != 1)
            qFatal("%s stands in %d rows", variable, static_cast<int>(found.size()));
        return *found.front();
    }
    void DoubleClick(DlgVariables& form, const char* variable)
    {
        QTreeWidgetItem& row = RowOf(form, variable);
        form.ListViewVariables->scrollToItem(&row);
        const QPoint place = form.ListViewVariables->visualItemRect(&row).center();
        QWidget* rows = form.ListViewVariables->viewport();
        QTest::mouseClick(rows, Qt::LeftButton, {}, place);
        QTest::mouseDClick(rows, Qt::LeftButton, {}, place);
    }
};

TEST_F(DlgVariablesTest, ShowsVariablesWithTheirValues)
{
    DlgVariables form(session, Use::Preview, nullptr);
    EXPECT_EQ(form.ListViewVariables->headerItem()->text(0), "Variabel");
    EXPECT_EQ(form.ListViewVariables->headerItem()->text(1), "Värde");
    EXPECT_EQ(form.ListViewVariables->topLevelItemCount(), 32);
    EXPECT_EQ(form.ListViewVariables->topLevelItem(0)->text(0), "%DESTDIR");
    EXPECT_EQ(RowOf(form, "%DESTDIR").text(1), "%PROGRAMFILES\\Ordlistan");
    EXPECT_EQ(RowOf(form, "%SYSDIR").text(1), "C:\\Windows\\System32");
    EXPECT_EQ(RowOf(form, "%PROGRAMGROUP").text(1), "Ordlistan");
    EXPECT_EQ(session.project.ProgramGroup.ProgramGroup, "Ordlistan");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(form.cmdCancel, nullptr);
}

TEST_F(DlgVariablesTest, StaysOpenOverADoubleClickInThePreview)
{
    DlgVariables form(session, Use::Preview, nullptr);
    ShowActive(form);
    DoubleClick(form, "%WINDIR");
    EXPECT_TRUE(form.isVisible());
    Click(form, "cmdOK");
    EXPECT_FALSE(form.isVisible());
}

TEST_F(DlgVariablesTest, GivesTheVariableThatIsDoubleClicked)
{
    OnNextDialog([&](QDialog& dialog) {
        DoubleClick(dynamic_cast<DlgVariables&>(dialog), "%WINDIR");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(ChooseVariable(session, nullptr), "%WINDIR");
}

TEST_F(DlgVariablesTest, IsPickedFromByKeysToo)
{
    OnNextDialog([](QDialog& dialog) {
        auto& list = Find<QTreeWidget>(dialog, "ListViewVariables");
        EXPECT_EQ(list.selectedItems().value(0), list.topLevelItem(0));
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
    });
    EXPECT_EQ(ChooseVariable(session, nullptr), "%SYSDIR");
}

TEST_F(DlgVariablesTest, GivesNothingWithoutAChoice)
{
    OnNextDialog([](QDialog& dialog) {
        Find<QTreeWidget>(dialog, "ListViewVariables").clearSelection();
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(ChooseVariable(session, nullptr), std::nullopt);
    OnNextDialog([](QDialog& dialog) {
        Find<QTreeWidget>(dialog, "ListViewVariables").topLevelItem(3)->setSelected(true);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(ChooseVariable(session, nullptr), std::nullopt);
}

TEST_F(DlgVariablesTest, ShowsChangedValuesTheNextTime)
{
    {
        DlgVariables form(session, Use::Preview, nullptr);
        ShowActive(form);
        OnNextDialog([](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), "DlgChVariables");
            Type(dialog, "tReg1", "HKLM\\a");
            Click(dialog, "cmdOK");
        });
        Click(form, "cmdChangeVariables");
        EXPECT_EQ(RowOf(form, "%REG1").text(1), "") << "not filled again";
    }
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    DlgVariables again(session, Use::Preview, nullptr);
    EXPECT_EQ(RowOf(again, "%REG1").text(1), "[HKLM\\a]");
}

TEST_F(DlgVariablesTest, LooksRight)
{
    session.project.FileComponents[0] = {.Comp = 1, .CompDir = "%DESTDIR\\Ordböcker"};
    DlgVariables form(session, Use::Picker, nullptr);
    ShowActive(form);
    SavePicture(form, "DlgVariables");
    SaveDarkPicture(form, "DlgVariables");
}

class DlgChVariablesTest : public WindowTest {
protected:
    struct FieldRow {
        const char* name;
        Text& value;
        int longest;
    };
    std::vector<FieldRow> Rows()
    {
        section::Version& version = session.project.Version;
        section::LicenseData& user = session.project.LicenseData;
        section::RegPrivateVar& own = session.project.RegPrivateVar;
        return {{"tVerOrganization", version.CompanyName, 199},
                {"tVerProductName", version.ProductName, 199},
                {"tVerProductVersion", version.ProductVersion, 199},
                {"tVerXProductVersion", version.XProductVersionFName, 249},
                {"tUserCompany", user.UserCompany, 199},
                {"tUserName", user.UserName, 199},
                {"tUserAddress", user.UserAddress, 199},
                {"tUserPhone", user.UserPhone, 199},
                {"tUserFax", user.UserFax, 199},
                {"tUseremail", user.Useremail, 199},
                {"tReg1", own.Reg1, 219},
                {"tReg2", own.Reg2, 219},
                {"tReg3", own.Reg3, 219}};
    }
};

TEST_F(DlgChVariablesTest, LoadsAndStoresEachValue)
{
    for (const FieldRow& row : Rows())
        row.value = Text("Å ") + row.name;
    DlgChVariables form(session, nullptr);
    for (const FieldRow& row : Rows()) {
        EXPECT_EQ(TextIn(form, row.name), Text("Å ") + row.name);
        EXPECT_EQ(Find<QLineEdit>(form, row.name).maxLength(), row.longest) << row.name;
        EXPECT_NE(Find<QLineEdit>(form, row.name).accessibleName(), "") << row.name;
        Type(form, row.name, Text("Ny ") + row.name);
        EXPECT_EQ(row.value, Text("Å ") + row.name) << "not before OK";
    }
    form.cmdOK->click();
    for (const FieldRow& row : Rows())
        EXPECT_EQ(row.value, Text("Ny ") + row.name);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgChVariablesTest, ChangesNothingOnCancel)
{
    DlgChVariables form(session, nullptr);
    for (const FieldRow& row : Rows())
        Type(form, row.name, "x");
    form.cmdCancel->click();
    for (const FieldRow& row : Rows())
        EXPECT_EQ(row.value, "") << row.name;
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgChVariablesTest, TakesTheFileOfTheVersionFromADialog)
{
    DlgChVariables form(session, nullptr);
    ShowActive(form);
    ask.choices = {{{"C:\\App\\prog.exe"}}, {}};
    Click(form, "CmdSelFile");
    EXPECT_EQ(TextIn(form, "tVerXProductVersion"), "C:\\App\\prog.exe");
    EXPECT_EQ(ask.questions.at(0).title, "Välj fil");
    EXPECT_EQ(ask.questions.at(0).folder, "c:\\");
    EXPECT_EQ(ask.questions.at(0).filter, "Binära filer (*.dll;*.ocx;*.exe)|*.dll;*.ocx;*.exe");
    Click(form, "CmdSelFile");
    EXPECT_EQ(TextIn(form, "tVerXProductVersion"), "C:\\App\\prog.exe") << "cancelled";
    Click(form, "CmdClearField");
    EXPECT_EQ(TextIn(form, "tVerXProductVersion"), "");
}

TEST_F(DlgChVariablesTest, LooksRight)
{
    session.project.Version.CompanyName = "Firma Ängsö AB";
    session.project.Version.XProductVersionFName = "C:\\Projekt\\Ordlistan\\ordlista.exe";
    DlgChVariables form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.tVerOrganization->hasFocus());
    SavePicture(form, "DlgChVariables");
    SaveDarkPicture(form, "DlgChVariables");
}

} // namespace
} // namespace quillon::test
