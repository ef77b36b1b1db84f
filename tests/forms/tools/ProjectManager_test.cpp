#include "tools/forms/ProjectManager.h"

#include "shell/fake_window.h"
#include "support/window_test.h"
#include "tools/forms/PMMoreInfo.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kSettings = "C:\\Data\\Roaming\\Quillon\\QUILLON.INI";

std::string ProjectBytes(const std::string& name, int files, int kilobytes)
{
    return "[ProjectName]\r\nProjectName=" + name + "\r\n[Version]\r\nProductName=Produkt " + name +
           "\r\nCompanyName=Firma AB\r\nDescription=Beskriven\r\nProductVersion=2.0\r\n"
           "Comments=Inga\r\n[Media]\r\nTargetMedia=4\r\n[FileListInfo]\r\nFiles=" +
           std::to_string(files) + "\r\nTotalSize=" + std::to_string(kilobytes) + "\r\n";
}

class ProjectManagerTest : public WindowTest {
protected:
    ProjectManagerTest()
    {
        machine.files.Put("C:\\P\\ost.qnp", ProjectBytes("\xD6st", 9, 10240));
        machine.files.Put("C:\\P\\alfa.qnp", ProjectBytes("Alfa", 10, 2048));
        machine.files.Put("C:\\P\\zeta.qnp", ProjectBytes("Zeta", 100, 512));
        machine.files.Put(kSettings, "[ProjectManager]\r\nProjectFiles=3\r\nPF1=C:\\P\\ost.qnp\r\n"
                                     "PF2=C:\\P\\alfa.qnp\r\nPF3=C:\\P\\zeta.qnp\r\n");
        session.project.ProjectName.ProjectName = "Ny";
        session.state.ProjectFileName = "C:\\P\\ny.qnp";
    }

    static std::vector<Text> Column(ProjectManager& form, int column)
    {
        std::vector<Text> texts;
        for (int i = 0; i < form.ListViewProjects->topLevelItemCount(); ++i)
            texts.push_back(FromQt(form.ListViewProjects->topLevelItem(i)->text(column)));
        return texts;
    }
    static void Select(ProjectManager& form, int row)
    {
        form.ListViewProjects->setCurrentItem(form.ListViewProjects->topLevelItem(row));
    }
    static void ClickHeader(ProjectManager& form, int column)
    {
        QHeaderView* header = form.ListViewProjects->header();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(column) + 5, header->height() / 2});
    }
    std::string Settings() const { return machine.files.Get(kSettings); }
};

TEST_F(ProjectManagerTest, ShowsTheListInItsStoredOrder)
{
    ProjectManager form(session, nullptr);
    EXPECT_EQ(form.windowTitle(), "Projekthanterare");
    EXPECT_THAT(Column(form, 0), ElementsAre("Öst", "Alfa", "Zeta"));
    EXPECT_THAT(Column(form, 2), ElementsAre("Internet", "Internet", "Internet"));
    EXPECT_THAT(Column(form, 4), ElementsAre("10,0", "2,0", "0,5"));
    EXPECT_TRUE(form.ListViewProjects->isColumnHidden(7));
}

TEST_F(ProjectManagerTest, SortsByTheKindOfAColumnAndKeepsTheStoredOrder)
{
    ProjectManager form(session, nullptr);
    ShowActive(form);
    ClickHeader(form, 0);
    EXPECT_THAT(Column(form, 0), ElementsAre("Alfa", "Zeta", "Öst"));
    ClickHeader(form, 3);
    EXPECT_THAT(Column(form, 3), ElementsAre("9", "10", "100"));
    ClickHeader(form, 4);
    EXPECT_THAT(Column(form, 4), ElementsAre("0,5", "2,0", "10,0"));
    Click(form, "cmdOK");
    EXPECT_THAT(Settings(), HasSubstr("PF1=C:\\P\\ost.qnp\r\nPF2=C:\\P\\alfa.qnp\r\n"));
}

TEST_F(ProjectManagerTest, AddsTheOpenProjectByButtonAndByKeys)
{
    ProjectManager form(session, nullptr);
    ShowActive(form);
    Click(form, "cmdAddProject");
    EXPECT_THAT(Column(form, 0), ElementsAre("Öst", "Alfa", "Zeta", "Ny"));
    EXPECT_EQ(form.ListViewProjects->currentItem()->text(6), "2004-03-01");
    ask.Expect({BoxKind::Inform, "Info", "Projektfilen finns redan i projektlistan!"});
    QTest::keyClick(form.ListViewProjects, Qt::Key_N, Qt::ControlModifier);
    Click(form, "cmdOK");
    EXPECT_THAT(Settings(), HasSubstr("ProjectFiles=4\r\n"));
    EXPECT_THAT(Settings(), HasSubstr("PF4=C:\\P\\ny.qnp\r\n"));
}

TEST_F(ProjectManagerTest, TakesARowOutBehindItsQuestion)
{
    ProjectManager form(session, nullptr);
    ShowActive(form);
    Select(form, 1);
    const Text question = "Vill du avlägsna den markerade projektfilen från projektlistan?";
    ask.Expect({BoxKind::YesNo, "Projekthanterare", question, Answer::No});
    Click(form, "cmdDeleteProject");
    EXPECT_THAT(Column(form, 0), ElementsAre("Öst", "Alfa", "Zeta"));
    ask.Expect({BoxKind::YesNo, "Projekthanterare", question, Answer::Yes});
    form.ListViewProjects->setFocus();
    QTest::keyClick(form.ListViewProjects, Qt::Key_Delete);
    EXPECT_THAT(Column(form, 0), ElementsAre("Öst", "Zeta"));
    EXPECT_TRUE(machine.files.FileExists("C:\\P\\alfa.qnp"));
    Click(form, "cmdOK");
    EXPECT_THAT(Settings(), HasSubstr("PF2=C:\\P\\zeta.qnp\r\n"));
    EXPECT_THAT(Settings(), HasSubstr("ProjectFiles=2\r\n"));
}

TEST_F(ProjectManagerTest, LeavesTheListAsItWasOnCancel)
{
    const std::string before = Settings();
    ProjectManager form(session, nullptr);
    Click(form, "cmdAddProject");
    Click(form, "cmdCancel");
    EXPECT_EQ(Settings(), before);
    EXPECT_EQ(form.SelectedProject, "");
}

TEST_F(ProjectManagerTest, OpensByDoubleClickByEnterAndByButton)
{
    for (const int way : {0, 1, 2}) {
        ProjectManager form(session, nullptr);
        ShowActive(form);
        Select(form, 1);
        QWidget* list = form.ListViewProjects->viewport();
        const QPoint row =
            form.ListViewProjects->visualItemRect(form.ListViewProjects->currentItem()).center();
        if (way == 0) {
            QTest::mouseClick(list, Qt::LeftButton, {}, row);
            QTest::mouseDClick(list, Qt::LeftButton, {}, row);
        } else if (way == 1) {
            QTest::keyClick(form.ListViewProjects, Qt::Key_Return);
        } else {
            Click(form, "cmdOpenProject");
        }
        EXPECT_EQ(form.SelectedProject, "C:\\P\\alfa.qnp") << way;
        EXPECT_TRUE(form.OK) << way;
        EXPECT_FALSE(form.isVisible()) << way;
    }
}

TEST_F(ProjectManagerTest, TellsWhereTheListCanNotBeSavedAndOpensAChosenProject)
{
    ProjectManager form(session, nullptr);
    ShowActive(form);
    machine.files.FailFromWrite(1, 61);
    ask.Expect({BoxKind::Critical, "Fel"});
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.SelectedProject, "");
    ask.Expect({BoxKind::Critical, "Fel"});
    Click(form, "cmdOpenProject");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.SelectedProject, "C:\\P\\ost.qnp");
}

TEST_F(ProjectManagerTest, OpensTheChosenProjectBehindTheQuestionOfTheOpenOne)
{
    FakeWindow window;
    const auto choose = [&] {
        OnNextDialog([](QDialog& dialog) {
            Select(static_cast<ProjectManager&>(dialog), 1);
            Click(dialog, "cmdOpenProject");
        });
        OpenProjectManager(session, window, nullptr);
    };
    const ExpectedBox question{BoxKind::YesNoCancel, "Tavrell Quillon 2004",
                               "Vissa inställningar har ändrats. Vill du spara dessa?",
                               Answer::Cancel};
    session.state.ProjectIsDirty = kOn;
    ask.Expect(question);
    choose();
    EXPECT_EQ(session.state.ProjectFileName, "C:\\P\\ny.qnp") << "cancelled";
    session.state.ProjectIsDirty = kOff;
    // No type mark: the file is refused, and opened by name all the same.
    ask.Expect({BoxKind::Warn, "Fel filformat"});
    choose();
    EXPECT_EQ(session.state.ProjectFileName, "C:\\P\\alfa.qnp");
    EXPECT_THAT(window.calls, testing::Contains("project"));
}

TEST_F(ProjectManagerTest, OpensNothingWhenItIsClosed)
{
    FakeWindow window;
    OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdOK"); });
    OpenProjectManager(session, window, nullptr);
    EXPECT_EQ(session.state.ProjectFileName, "C:\\P\\ny.qnp");
    EXPECT_THAT(window.calls, testing::IsEmpty());
}

TEST_F(ProjectManagerTest, HasNothingToDoWithoutRows)
{
    machine.files.Put(kSettings, "");
    ProjectManager form(session, nullptr);
    for (QPushButton* button : {form.cmdOpenProject, form.cmdDeleteProject, form.cmdMoreInfo})
        EXPECT_FALSE(button->isEnabled());
    ShowActive(form);
    QTest::keyClick(form.ListViewProjects, Qt::Key_Delete);
    QTest::keyClick(form.ListViewProjects, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(ProjectManagerTest, ShowsTheVersionDataOfAProject)
{
    ProjectManager form(session, nullptr);
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(TextIn(dialog, "sProjectFName"), "C:\\P\\ost.qnp");
        EXPECT_EQ(TextIn(dialog, "sVerOrganizationX"), "Firma AB");
        EXPECT_EQ(TextIn(dialog, "sVerProductNameX"), "Produkt Öst");
        EXPECT_EQ(TextIn(dialog, "sVerDescriptionX"), "Beskriven");
        EXPECT_EQ(TextIn(dialog, "sVerProductVersionX"), "2.0");
        EXPECT_EQ(TextIn(dialog, "sVerCommentsX"), "Inga");
        EXPECT_EQ(dialog.findChild<QPushButton*>("cmdCancel"), nullptr);
        Click(dialog, "cmdOK");
    });
    Click(form, "cmdMoreInfo");
}

TEST_F(ProjectManagerTest, LooksRight)
{
    ProjectManager form(session, nullptr);
    ShowActive(form);
    SavePicture(form, "ProjectManager");
    SaveDarkPicture(form, "ProjectManager");
    PMMoreInfo info("C:\\P\\ost.qnp", {"Firma AB", "Öst", "Ett program", "2.0", "Inga"}, nullptr);
    ShowActive(info);
    SavePicture(info, "PMMoreInfo");
}

} // namespace
} // namespace quillon::test
