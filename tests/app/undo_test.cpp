// Undo and redo by keys, menu and pages, as their user meets them.
#include "app/MainForm.h"
#include "app/file_list/FileListView.h"
#include "app/history/EditHistory.h"
#include "app/history/edit_name.h"
#include "filelist/list_builder.h"
#include "shell/command_table.h"
#include "support/window_test.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr CommandId kSave = CommandId::SaveProject;
constexpr CommandId kDelete = CommandId::DeleteRows;
constexpr CommandId kVersion = CommandId::VersionInfo;

class Undo : public WindowTest {
protected:
    void OpenWindow(std::vector<FileListRow> rows = {MakeRow("a.txt"), MakeRow("b.txt"),
                                                     MakeRow("c.txt")})
    {
        session.project.Files.rows = std::move(rows);
        form = std::make_unique<MainForm>(session);
        form->resize(1000, 700);
        ShowActive(*form);
        list = &Find<FileListView>(*form, "ListViewFiles");
        list->setFocus();
        Idle();
    }
    void OpenWindowWith(ExpectedBox box)
    {
        ask.Expect(std::move(box));
        OpenWindow();
    }
    /// Until the window has no more events to handle.
    static void Idle()
    {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&loop] { QTimer::singleShot(0, &loop, &QEventLoop::quit); });
        loop.exec();
    }
    void Press(int key)
    {
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        Idle();
        QTest::keyClick(form->focusWidget(), static_cast<Qt::Key>(key), Qt::ControlModifier);
        Idle();
    }
    Text Caption(CommandId id)
    {
        Idle();
        auto& action = *form->findChild<QAction*>(QString("cmd%1").arg(static_cast<int>(id)));
        return (action.isEnabled() ? "" : "-") + FromQt(action.text());
    }
    void DeleteRow(std::size_t row)
    {
        form->ShowFileList({row});
        form->RunCommand(kDelete);
    }
    std::vector<Text> Names() { return NamesOf(session.project.Files); }
    Flag IsDirty() const { return session.state.ProjectIsDirty; }

    const ExpectedBox kDeleteOne{BoxKind::YesNo, "Fillista"};
    std::unique_ptr<MainForm> form;
    FileListView* list = nullptr;
};

TEST_F(Undo, IsNotThereBeforeAnythingIsDone)
{
    OpenWindow();
    EXPECT_EQ(Caption(CommandId::Undo), "-&Ångra");
    EXPECT_EQ(Caption(CommandId::Redo), "-&Gör om");
    Press(Qt::Key_Z);
    EXPECT_EQ(Names().size(), 3U);
}

TEST_F(Undo, BringsDeletedRowsBackAndSelectsThem)
{
    OpenWindowWith(kDeleteOne);
    DeleteRow(1);
    EXPECT_THAT(Names(), ElementsAre("a.txt", "c.txt"));
    EXPECT_EQ(Caption(CommandId::Undo), "&Ångra Ta bort");
    list->setFocus();
    Press(Qt::Key_Z);
    EXPECT_THAT(Names(), ElementsAre("a.txt", "b.txt", "c.txt"));
    EXPECT_EQ(list->model()->rowCount(), 3);
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1));
    EXPECT_EQ(Find<QLabel>(*form, "MainStatusBarPane1").text(), "3 objekt,   0,0 kb");
    EXPECT_EQ(IsDirty(), kOff) << "the project is as it was opened";
    EXPECT_EQ(Caption(CommandId::Redo), "&Gör om Ta bort");
    Press(Qt::Key_Y);
    EXPECT_THAT(Names(), ElementsAre("a.txt", "c.txt"));
    EXPECT_EQ(IsDirty(), kOn);
}

TEST_F(Undo, ShowsTheFileListWhenItChangesThere)
{
    OpenWindowWith(kDeleteOne);
    DeleteRow(0);
    form->SelectTab(Tab::Dialogs);
    Press(Qt::Key_Z);
    EXPECT_EQ(form->SelectedTab(), Tab::Files);
    EXPECT_EQ(Names().size(), 3U);
}

TEST_F(Undo, TakesBackWhatAClickOnAColumnSorted)
{
    OpenWindow({MakeRow("a", "z"), MakeRow("b", "y")});
    list->onColumnClick("Destination");
    EXPECT_THAT(Names(), ElementsAre("b", "a"));
    EXPECT_EQ(Caption(CommandId::Undo), "&Ångra Sortera");
    Press(Qt::Key_Z);
    EXPECT_THAT(Names(), ElementsAre("a", "b"));
    EXPECT_EQ(list->header()->sortIndicatorSection(), 0);
    EXPECT_EQ(IsDirty(), kOff) << "sorting marks nothing, neither way";
}

TEST_F(Undo, MakesADialogOneStepWhateverIsChangedInIt)
{
    OpenWindow();
    OnNextDialog([](QDialog& dialog) {
        Type(dialog, "tVerOrganization", "Firma AB");
        Type(dialog, "tVerProductName", "Hej");
        Idle();
        Click(dialog, "cmdOK");
    });
    form->RunCommand(kVersion);
    EXPECT_EQ(Caption(CommandId::Undo), "&Ångra Versionsinformation");
    Press(Qt::Key_Z);
    EXPECT_EQ(session.project.Version.CompanyName, "");
    EXPECT_EQ(session.project.Version.ProductName, "");
    EXPECT_EQ(Caption(CommandId::Undo), "-&Ångra");
    Press(Qt::Key_Y);
    EXPECT_EQ(session.project.Version.ProductName, "Hej");
}

TEST_F(Undo, MakesNoStepOfACancelledDialog)
{
    OpenWindow();
    OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdCancel"); });
    form->RunCommand(kVersion);
    EXPECT_EQ(Caption(CommandId::Undo), "-&Ångra");
}

TEST_F(Undo, TakesTheTicksOfPagesBackOneByOne)
{
    OpenWindow();
    form->SelectTab(Tab::Dialogs);
    Idle();
    const auto before = session.project.DialogBoxes;
    Click(*form, "cGeneralInfoDlg");
    Idle();
    Click(*form, "cPasswordDlg");
    EXPECT_EQ(Caption(CommandId::Undo), "&Ångra Ändra dialogrutor");
    form->RunCommand(CommandId::Undo);
    EXPECT_EQ(session.project.DialogBoxes.PasswordDlg, 0);
    EXPECT_NE(session.project.DialogBoxes.GeneralInfoDlg, before.GeneralInfoDlg);
    EXPECT_TRUE(Find<QCheckBox>(*form, "cGeneralInfoDlg").isChecked());
    EXPECT_FALSE(Find<QCheckBox>(*form, "cPasswordDlg").isChecked());
    form->RunCommand(CommandId::Undo);
    EXPECT_FALSE(Find<QCheckBox>(*form, "cGeneralInfoDlg").isChecked());
    EXPECT_EQ(IsDirty(), kOff);
}

TEST_F(Undo, ShowsAndHidesTheComponentColumnWithTheTick)
{
    OpenWindow();
    form->SelectTab(Tab::Components);
    Idle();
    Click(*form, "cComp1");
    EXPECT_EQ(Caption(CommandId::Undo), "&Ångra Ändra komponenter");
    EXPECT_FALSE(list->isColumnHidden(ComponentNumber));
    form->RunCommand(CommandId::Undo);
    EXPECT_TRUE(list->isColumnHidden(ComponentNumber));
    EXPECT_FALSE(Find<QLineEdit>(*form, "tCompName1").isEnabled());
}

TEST_F(Undo, LeavesTypingToTheFieldUntilItIsLeft)
{
    OpenWindow();
    auto& name = Find<QLineEdit>(*form, "tProjectName");
    Type(*form, "tProjectName", "abc");
    EXPECT_EQ(Caption(CommandId::Undo), "&Ångra skrivning");
    Press(Qt::Key_Z);
    EXPECT_EQ(name.text(), "") << "the field's own undo";
    Type(*form, "tProjectName", "abc");
    form->RunCommand(CommandId::Undo);
    EXPECT_EQ(name.text(), "") << "by the menu, too";
    form->RunCommand(CommandId::Redo);
    EXPECT_EQ(session.project.ProjectName.ProjectName, "abc");

    list->setFocus();
    EXPECT_EQ(Caption(CommandId::Undo), "&Ångra Ändra projektnamn och huvudkatalog");
    Press(Qt::Key_Z);
    EXPECT_EQ(session.project.ProjectName.ProjectName, "");
    EXPECT_EQ(name.text(), "");
    Press(Qt::Key_Y);
    EXPECT_EQ(name.text(), "abc");
}

TEST_F(Undo, KeepsWhatWasTypedApartFromTheCommandBehindIt)
{
    OpenWindowWith(kDeleteOne);
    Type(*form, "tProjectName", "abc");
    DeleteRow(0);
    list->setFocus();
    Press(Qt::Key_Z);
    EXPECT_EQ(Names().size(), 3U);
    EXPECT_EQ(session.project.ProjectName.ProjectName, "abc");
    EXPECT_EQ(Caption(CommandId::Undo), "&Ångra Ändra projektnamn och huvudkatalog");
}

TEST_F(Undo, NamesWhatWasTypedByItsTab)
{
    OpenWindow();
    form->SelectTab(Tab::Registry);
    auto& registry = Find<QPlainTextEdit>(*form, "editRegistryList");
    registry.setFocus();
    TypeKeys(registry, "HKEY");
    Idle();
    form->SelectTab(Tab::Dialogs);
    EXPECT_EQ(Caption(CommandId::Undo), "&Ångra Ändra Registry");
    form->RunCommand(CommandId::Undo);
    EXPECT_EQ(registry.toPlainText(), "");
    EXPECT_EQ(session.project.Lists.Registry, "");
}

TEST_F(Undo, GoesPastWhatTheDesignTabCorrectsByItself)
{
    session.project.DesTextBox.ShowTextBox = kOn;
    session.project.DesTextBox.BoxXPos = 32000;
    OpenWindowWith(kDeleteOne);
    DeleteRow(0);
    form->SelectTab(Tab::Design);
    QApplication::processEvents();
    Idle();
    EXPECT_LT(session.project.DesTextBox.BoxXPos, 32000) << "moved inside the surface";
    EXPECT_EQ(Caption(CommandId::Undo), "&Ångra Ta bort");
    form->RunCommand(CommandId::Undo);
    EXPECT_EQ(Names().size(), 3U);
    EXPECT_EQ(Caption(CommandId::Undo), "-&Ångra");
}

TEST_F(Undo, ShowsASavedProjectAsUnchangedWhenItComesBackToIt)
{
    OpenWindowWith(kDeleteOne);
    machine.files.PutFolder("C:\\P");
    session.state.ProjectFileName = "C:\\P\\a.qnp";
    Type(*form, "tProjectName", "abc");
    list->setFocus();
    Idle();
    form->RunCommand(kSave);
    EXPECT_EQ(IsDirty(), kOff);
    EXPECT_EQ(session.project.ProgramGroup.ProgramGroup, "abc") << "filled in by saving";
    EXPECT_EQ(Caption(CommandId::Undo), "&Ångra Ändra projektnamn och huvudkatalog")
        << "saving is no step";
    DeleteRow(0);
    form->RunCommand(CommandId::Undo);
    EXPECT_EQ(IsDirty(), kOff);
    form->RunCommand(CommandId::Undo);
    EXPECT_EQ(session.project.ProjectName.ProjectName, "");
    EXPECT_EQ(IsDirty(), kOn) << "the file says abc";
    form->RunCommand(CommandId::Redo);
    EXPECT_EQ(IsDirty(), kOff);
}

TEST_F(Undo, EndsAtTheProjectThatIsOpen)
{
    OpenWindowWith(kDeleteOne);
    ask.Expect({BoxKind::YesNoCancel, "Tavrell Quillon 2004", "", Answer::No});
    DeleteRow(0);
    form->RunCommand(CommandId::NewProject);
    EXPECT_EQ(Caption(CommandId::Undo), "-&Ångra");
    EXPECT_EQ(Caption(CommandId::Redo), "-&Gör om");
}

TEST(EditNames, AreTheCaptionsWithoutAccessLetterAndDots)
{
    EXPECT_EQ(EditName(CommandId::AddFiles), "Addera filer");
    EXPECT_EQ(EditName(CommandId::CompareLstFile),
              "Jämför fillista med Package & Deployment LST-fil");
    EXPECT_EQ(EditName(CommandId::AddEmptyFolder), "Addera tom katalog");
    EXPECT_EQ(EditName(std::string_view("Ändra käl&lfil...")), "Ändra källfil");
    EXPECT_EQ(EditName(CommandId::Create), "Val av målmedium");
    for (const CommandId id :
         {CommandId::NewProject, CommandId::OpenProject, CommandId::SaveProject,
          CommandId::SaveProjectAs, CommandId::ProjectManager, CommandId::Exit, CommandId::Copy,
          CommandId::FindInList, CommandId::Undo, CommandId::Redo, kRecentFiles.front(),
          kRecentFiles.back(), CommandId(999)})
        EXPECT_EQ(EditName(id), "") << static_cast<int>(id);
}

} // namespace
} // namespace quillon::test
