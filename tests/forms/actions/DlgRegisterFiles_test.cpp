#include "actions/forms/DlgRegisterFiles.h"

#include "filelist/list_builder.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgRegisterFilesTest : public WindowTest {
protected:
    DlgRegisterFilesTest()
    {
        FileListRow control = MakeRow("Kalender.ocx", "%SYSDIR", "c:\\d\\kalender.ocx");
        control[Extension] = "ocx";
        control[CopyOptions] = "VRA";
        FileListRow library = MakeRow("Språk.dll", "%DESTDIR\\Bin", "c:\\d\\språk.dll");
        library[Extension] = "dll";
        library[CopyOptions] = "DA";
        session.project.Files = MakeList({control, library});
    }

    Text& list = session.project.Lists.RegisterFileList;
};

TEST_F(DlgRegisterFilesTest, ShowsTheListOfTheProject)
{
    list = "%DESTDIR\\a.ocx\r\n";
    DlgRegisterFiles form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Registrera filer");
    EXPECT_EQ(form.tRegFileList->toPlainText(), "%DESTDIR\\a.ocx\n");
    EXPECT_EQ(form.cmdGetRFiles->text(), "Hämta alla &registreringsmärkta filer från fillistan");
    EXPECT_EQ(form.cmdGetDllFiles->text(), "Hämta alla &DLL-filer från fillistan");
    EXPECT_TRUE(form.tRegFileList->hasFocus());
}

TEST_F(DlgRegisterFilesTest, GathersTheMarkedFilesBehindWhatWasTyped)
{
    DlgRegisterFiles form(session, nullptr);
    ShowActive(form);
    TypeKeys(*form.tRegFileList, "%DESTDIR\\a.ocx");
    form.tRegFileList->moveCursor(QTextCursor::Start);
    Click(form, "cmdGetRFiles");
    EXPECT_EQ(form.tRegFileList->toPlainText(), "%DESTDIR\\a.ocx\n%SYSDIR\\Kalender.ocx\n");
    Click(form, "cmdGetRFiles");
    EXPECT_EQ(form.tRegFileList->toPlainText(),
              "%DESTDIR\\a.ocx\n%SYSDIR\\Kalender.ocx\n\n%SYSDIR\\Kalender.ocx\n");
    SavePicture(form, "DlgRegisterFiles");
    SaveDarkPicture(form, "DlgRegisterFiles");
    EXPECT_EQ(list, "");
    form.tRegFileList->undo();
    Click(form, "cmdOK");
    EXPECT_EQ(list, "%DESTDIR\\a.ocx\r\n%SYSDIR\\Kalender.ocx\r\n");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgRegisterFilesTest, GathersTheLibrariesOfAnEmptyList)
{
    DlgRegisterFiles form(session, nullptr);
    ShowActive(form);
    Click(form, "cmdGetDllFiles");
    EXPECT_EQ(form.tRegFileList->toPlainText(), "%DESTDIR\\Bin\\Språk.dll\n");
    EXPECT_TRUE(form.tRegFileList->hasFocus());
    Click(form, "cmdOK");
    EXPECT_EQ(list, "%DESTDIR\\Bin\\Språk.dll\r\n");
}

TEST_F(DlgRegisterFilesTest, ChangesNothingOnCancel)
{
    list = "%DESTDIR\\a.ocx";
    DlgRegisterFiles form(session, nullptr);
    ShowActive(form);
    Click(form, "cmdGetRFiles");
    Click(form, "cmdGetDllFiles");
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(list, "%DESTDIR\\a.ocx");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgRegisterFilesTest, TellsALineThatTheProjectFileWouldNotGiveBack)
{
    DlgRegisterFiles form(session, nullptr);
    ShowActive(form);
    TypeKeys(*form.tRegFileList, "[FileList]");
    EXPECT_TRUE(form.sRegFileListWarning->isVisible());
    TypeKeys(*form.tRegFileList, "x");
    EXPECT_FALSE(form.sRegFileListWarning->isVisible());
}

TEST_F(DlgRegisterFilesTest, OpensTheHelp)
{
    DlgRegisterFiles form(session, nullptr);
    ShowActive(form);
    Click(form, "cmdHelp");
    ASSERT_EQ(machine.machine.started.size(), 1U);
    EXPECT_EQ(machine.machine.started.front().first, "C:\\Quillon\\QN.HLP");
    machine.machine.startFailure = 53;
    ask.Expect({BoxKind::Critical, "Hjälp"});
    Click(form, "cmdHelp");
}

} // namespace
} // namespace quillon::test
