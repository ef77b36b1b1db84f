#include "app/pages/ProjectHeader.h"

#include "project/project_file.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

class ProjectHeaderTest : public WindowTest {
protected:
    void SetUp() override
    {
        window.setLayout(new QVBoxLayout);
        window.layout()->addWidget(header);
        window.layout()->addWidget(next);
        header->ShowSession();
        ShowActive(window);
    }

    /// Types a main folder and goes on to the next field.
    Text LeftWith(const Text& folder)
    {
        Type(*header, "tDestinationDirectory", folder);
        next->setFocus();
        EXPECT_EQ(session.project.InstallDirectories.DestinationDirectory,
                  TextIn(*header, "tDestinationDirectory"));
        return TextIn(*header, "tDestinationDirectory");
    }

    QWidget window;
    ProjectHeader* header = new ProjectHeader(session);
    QLineEdit* next = new QLineEdit;
};

TEST_F(ProjectHeaderTest, WritesEachTypedChangeToTheProject)
{
    Type(*header, "tProjectName", "Prov Ö");
    EXPECT_EQ(session.project.ProjectName.ProjectName, "Prov Ö");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    session.state.ProjectIsDirty = kOff;
    Type(*header, "tDestinationDirectory", "C:\\Prov");
    EXPECT_EQ(session.project.InstallDirectories.DestinationDirectory, "C:\\Prov");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(ProjectHeaderTest, MarksNothingChangedByShowing)
{
    session.project.ProjectName.ProjectName = "Annat";
    session.project.InstallDirectories.DestinationDirectory = "C:\\Annat\\";
    header->ShowSession();
    EXPECT_EQ(TextIn(*header, "tProjectName"), "Annat");
    EXPECT_EQ(TextIn(*header, "tDestinationDirectory"), "C:\\Annat\\");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(ProjectHeaderTest, MarksNothingChangedByPassingThrough)
{
    session.project.InstallDirectories.DestinationDirectory = "C:\\Annat";
    header->ShowSession();
    Find<QLineEdit>(*header, "tDestinationDirectory").setFocus();
    next->setFocus();
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(ProjectHeaderTest, TakesNoMoreThanTheProjectFileHolds)
{
    const Text longName(250, 'x');
    Type(*header, "tProjectName", longName);
    Type(*header, "tDestinationDirectory", longName);
    EXPECT_EQ(session.project.ProjectName.ProjectName, longName.substr(0, 199));
    EXPECT_EQ(session.project.InstallDirectories.DestinationDirectory, longName.substr(0, 199));
    machine.files.Put("C:\\Quillon\\Res\\SetupDef.bmp", "");
    WriteProjectFile(session.project, "C:\\p.qnp", machine.host, ask);
    Project read;
    ReadProjectFile(read, "C:\\p.qnp", machine.host, ask, "C:\\Quillon");
    EXPECT_EQ(read.ProjectName.ProjectName, longName.substr(0, 199));
    EXPECT_EQ(read.InstallDirectories.DestinationDirectory, longName.substr(0, 199));
    Type(*header, "tProjectName", "a日b");
    EXPECT_EQ(session.project.ProjectName.ProjectName, "ab");
}

TEST_F(ProjectHeaderTest, ChecksTheMainFolderWhenItIsLeft)
{
    EXPECT_EQ(LeftWith("  C:\\%PROGRAMFILES\\App\\ "), "%PROGRAMFILES\\App");
    ask.Expect({BoxKind::Critical, "Ogiltig variabel"});
    EXPECT_EQ(LeftWith("%SRCDIR\\x"), "%SRCDIR\\x");
    ask.Expect({BoxKind::Critical, "Felaktig huvudkatalog", "Huvudkatalogen är ogiltig!"});
    EXPECT_EQ(LeftWith("\\\\server\\x"), "");
    ask.Expect({BoxKind::Critical, "Felaktig huvudkatalog"});
    EXPECT_EQ(LeftWith("c:\\"), "");
}

TEST_F(ProjectHeaderTest, CompletesVariablesOfTheMainFolder)
{
    auto& field = Find<QLineEdit>(*header, "tDestinationDirectory");
    Type(*header, "tDestinationDirectory", "%PR");
    EXPECT_EQ(TextIn(*header, "tDestinationDirectory"), "%PROGRAMFILES\\");
    EXPECT_EQ(field.cursorPosition(), static_cast<int>(field.text().size()));
    EXPECT_EQ(session.project.InstallDirectories.DestinationDirectory, "%PROGRAMFILES\\");
    TypeKeys(field, "App");
    EXPECT_EQ(session.project.InstallDirectories.DestinationDirectory, "%PROGRAMFILES\\App");
    Type(*header, "tDestinationDirectory", "%DE");
    EXPECT_EQ(TextIn(*header, "tDestinationDirectory"), "%DE");
    Type(*header, "tDestinationDirectory", "%my");
    EXPECT_EQ(TextIn(*header, "tDestinationDirectory"), "%my");
    // The name is no path.
    ask.Expect({BoxKind::Critical, "Ogiltig variabel"});
    Type(*header, "tProjectName", "%PR");
    EXPECT_EQ(TextIn(*header, "tProjectName"), "%PR");
}

TEST_F(ProjectHeaderTest, LetsACompletedVariableBeDeleted)
{
    auto& field = Find<QLineEdit>(*header, "tDestinationDirectory");
    Type(*header, "tDestinationDirectory", "%MY");
    EXPECT_EQ(field.text(), "%MYDOCUMENTS\\");
    while (!field.text().isEmpty())
        QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(session.project.InstallDirectories.DestinationDirectory, "");
}

TEST_F(ProjectHeaderTest, UndoesACompletion)
{
    auto& field = Find<QLineEdit>(*header, "tDestinationDirectory");
    Type(*header, "tDestinationDirectory", "%MY");
    field.undo();
    EXPECT_NE(field.text(), "%MYDOCUMENTS\\");
    EXPECT_EQ(session.project.InstallDirectories.DestinationDirectory, FromQt(field.text()));
}

TEST_F(ProjectHeaderTest, SpeaksItsFields)
{
    EXPECT_EQ(Find<QLineEdit>(*header, "tProjectName").accessibleName(), "Projektnamn");
    EXPECT_EQ(Find<QLineEdit>(*header, "tDestinationDirectory").accessibleName(), "Huvudkatalog");
    SavePicture(window, "ProjectHeader");
}

} // namespace
} // namespace quillon::test
