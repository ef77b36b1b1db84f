// What is kept of unsaved work when the program ends unexpectedly: the program is really killed,
// and a second one finds what the first one left.
#include "app/MainForm.h"
#include "app/history/RecoveryKeeper.h"
#include "platform/this_host.h"
#include "project/new_project.h"
#include "shell/fake_window.h"
#include "shell/project_commands.h"
#include "support/temp_folder.h"
#include "support/window_test.h"
#include "tools/fault_note.h"

#include <gmock/gmock.h>

#include <csignal>
#include <unistd.h>

namespace quillon::test {
namespace {

void WaitForUser()
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&loop] { QTimer::singleShot(0, &loop, &QEventLoop::quit); });
    loop.exec();
}

class RecoveryKeeperTest : public WindowTest {
protected:
    bool HasCopy() { return machine.files.FileExists("C:\\Quillon\\Recovery\\1.qnp"); }
    Text KeptName()
    {
        const std::string bytes = machine.files.Get("C:\\Quillon\\Recovery\\1.qnp");
        const auto begin = bytes.find("ProjectName = ") + 14;
        return bytes.substr(begin, bytes.find("\r\n", begin) - begin);
    }
};

TEST_F(RecoveryKeeperTest, WritesWhatIsChangedWhenItsTimeIsUpAndRemovesItWhenItIsSaved)
{
    machine.files.PutFolder("C:\\P");
    session.state.ProjectFileName = "C:\\P\\a.qnp";
    MainForm form(session);
    ShowActive(form);
    RecoveryCopy copy(session);
    RecoveryKeeper keeper(form, copy, 0);
    WaitForUser();
    EXPECT_FALSE(HasCopy()) << "nothing is changed";
    Type(form, "tProjectName", "ett");
    WaitForUser();
    WaitForUser();
    EXPECT_EQ(KeptName(), "ett") << "while it is being typed";
    machine.files.RemoveFile("C:\\Quillon\\Recovery\\1.qnp");
    WaitForUser();
    WaitForUser();
    EXPECT_FALSE(HasCopy()) << "written when it has changed, and only then";
    Type(form, "tProjectName", "två");
    WaitForUser();
    WaitForUser();
    EXPECT_TRUE(HasCopy());
    form.RunCommand(CommandId::SaveProject);
    WaitForUser();
    EXPECT_FALSE(HasCopy());
}

TEST_F(RecoveryKeeperTest, WaitsForItsTime)
{
    MainForm form(session);
    ShowActive(form);
    RecoveryCopy copy(session);
    RecoveryKeeper keeper(form, copy);
    Type(form, "tProjectName", "ett");
    WaitForUser();
    WaitForUser();
    EXPECT_FALSE(HasCopy());
    EXPECT_EQ(kRecoverySeconds, 30);
}

// The program as main() puts it together, on a disk that outlives it.
class KilledDesk {
public:
    KilledDesk()
    {
        if (!getenv(kFolder)) {
            folder_ = std::make_unique<TempFolder>();
            folder_->Put("c/Quillon/Res/SetupDef.bmp", "BM");
            setenv(kFolder, folder_->Path("c").c_str(), 1);
        }
        setenv("QUILLON_DRIVE_C", getenv(kFolder), 1);
        // A killed program is started again by its own command line, not as a copy with all its
        // threads.
        GTEST_FLAG_SET(death_test_style, "threadsafe");
    }
    ~KilledDesk()
    {
        unsetenv(kFolder);
        unsetenv("QUILLON_DRIVE_C");
    }

    /// Types a name, which is kept, and another one; then the program ends by the signal.
    [[noreturn]] static void WorkUntil(int signal)
    {
        ThisHost machine;
        ScriptedAsk ask;
        Session session = NewSession(machine.host, ask, "C:\\Quillon");
        ResetToNewProject(session.project, session.state, "C:\\Quillon");
        MainForm form(session);
        ShowActive(form);
        RecoveryCopy copy(session);
        RecoveryKeeper keeper(form, copy, 0);
        InstallFaultHandler(*machine.drives.ToHost(FaultNoteFile("C:\\Quillon")),
                            "Programversion: 6.5.6\n", [&] { copy.Keep(); });
        Type(form, "tProjectName", "kvar");
        WaitForUser();
        WaitForUser();
        Type(form, "tProjectName", "sist");
        kill(getpid(), signal);
        for (;;)
            pause();
    }

    /// What the next start finds.
    Text RecoveredName()
    {
        ThisHost machine;
        ScriptedAsk ask({{BoxKind::YesNoCancel, "Återskapa projekt"}});
        Session session = NewSession(machine.host, ask, "C:\\Quillon");
        RecoveryCopy copy(session);
        FakeWindow window;
        OfferLeftCopies(session, window, copy);
        note = ReadFaultNote(machine.host.files, "C:\\Quillon");
        copy.Remove();
        return session.project.ProjectName.ProjectName;
    }

    Text note;

private:
    static constexpr const char* kFolder = "QUILLON_TEST_KILLED_DRIVE";
    std::unique_ptr<TempFolder> folder_;
};

TEST(KilledProgramDeathTest, LosesWhatCameAfterTheLastCopyWhenTheSystemEndsIt)
{
    KilledDesk context;
    EXPECT_EXIT(KilledDesk::WorkUntil(SIGKILL), testing::KilledBySignal(SIGKILL), "");
    EXPECT_EQ(context.RecoveredName(), "kvar");
    EXPECT_EQ(context.note, "");
}

class FaultDeathTest : public testing::TestWithParam<int> {};

TEST_P(FaultDeathTest, LosesNothingAndKeepsANote)
{
    KilledDesk context;
    EXPECT_EXIT(KilledDesk::WorkUntil(GetParam()), testing::KilledBySignal(GetParam()), "");
    EXPECT_EQ(context.RecoveredName(), "sist");
    EXPECT_THAT(context.note, testing::HasSubstr("Programversion: 6.5.6\r\nSignal: SIG"));
    EXPECT_THAT(context.note, testing::HasSubstr("app_test")) << "a stack";
}

INSTANTIATE_TEST_SUITE_P(OfTheProgram, FaultDeathTest, testing::Values(SIGSEGV, SIGABRT, SIGFPE));

} // namespace
} // namespace quillon::test
