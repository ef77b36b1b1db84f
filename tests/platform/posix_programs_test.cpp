#include "platform/posix/posix_programs.h"

#include "platform/missing_program.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace quillon::test {
namespace {

using Kind = ProgramArgument::Kind;

class Programs : public testing::Test {
protected:
    ProgramOutcome Shell(const Text& command, const Text& input = {}, int maxSeconds = 0)
    {
        ProgramOrder order{.program = "sh", .input = input, .maxSeconds = maxSeconds};
        order.arguments = {{"-c"}, {command}};
        return programs.Run(order, [this] { ++waits; });
    }

    TempFolder disk;
    DriveMap drives{{{'Z', "/"}}};
    PosixPrograms programs{drives, disk.Path()};
    int waits = 0;
};

TEST_F(Programs, SayWhatTheySaidAndHowTheyEnded)
{
    const ProgramOutcome outcome = Shell("echo out; echo err >&2; exit 3");
    EXPECT_EQ(outcome.output, "out\nerr\n");
    EXPECT_EQ(outcome.exitCode, 3);
    EXPECT_FALSE(outcome.tookTooLong);
    EXPECT_GT(waits, 0);
}

TEST_F(Programs, ReadTheirInputOverAPipe)
{
    EXPECT_EQ(Shell("cat", "hemligt").output, "hemligt");
    ProgramOrder order{.program = "cat", .input = "hemligt"};
    order.arguments = {{"", Kind::InputAsFile}};
    EXPECT_EQ(programs.Run(order, {}).output, "hemligt");
    // The program need not read it.
    EXPECT_EQ(Shell("exit 0", std::string(kMaxProgramInput, 'x')).exitCode, 0);
    EXPECT_THROW(Shell("cat", std::string(kMaxProgramInput + 1, 'x')), RunError);
    // Nor is it among the arguments, which all users can see.
    EXPECT_THAT(Shell("tr '\\0' ' ' < /proc/$$/cmdline", "hemligt").output,
                testing::Not(testing::HasSubstr("hemligt")));
}

TEST_F(Programs, GetPathsOfTheirOwnMachine)
{
    disk.Put("a b.txt", "inside");
    ProgramOrder order{.program = "cat"};
    order.arguments = {{*drives.ToWindows(disk.Path("a b.txt")), Kind::Path}};
    EXPECT_EQ(programs.Run(order, {}).output, "inside");
    order.arguments = {{"Q:\\a.txt", Kind::Path}};
    EXPECT_THROW(programs.Run(order, {}), RunError);
}

TEST_F(Programs, AreEndedWithAllThatTheyStarted)
{
    const ProgramOutcome outcome = Shell("cat /dev/zero | cat > /dev/null & wait", "", 1);
    EXPECT_TRUE(outcome.tookTooLong);
    EXPECT_EQ(outcome.exitCode, -1);
}

TEST_F(Programs, AreMissedByName)
{
    EXPECT_TRUE(programs.IsInstalled("sh"));
    EXPECT_FALSE(programs.IsInstalled("there-is-no-such-program"));
    ProgramOrder order{.program = "there-is-no-such-program"};
    EXPECT_THROW(programs.Run(order, {}), MissingProgram);
}

TEST_F(Programs, HaveNoTerminalToAskAt)
{
    EXPECT_NE(Shell("exec 2>/dev/null; echo > /dev/tty").exitCode, 0);
}

TEST_F(Programs, AWorkFolderIsClosedToOthersAndGoes)
{
    auto folder = programs.MakeWorkFolder();
    const std::string path = *drives.ToHost(folder->Path());
    struct stat status {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
    std::filesystem::create_directory(path + "/sub");
    folder.reset();
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_THROW(PosixPrograms(drives, disk.Path("gone")).MakeWorkFolder(), RunError);
}

} // namespace
} // namespace quillon::test
