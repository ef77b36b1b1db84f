#include "platform/run_error.h"
#include "runtime/support/setup_fixture.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kCopy = "W:\\Arbete\\MDAC_TYP.EXE";
constexpr const char* kTitle = "Installation av Exempel";
constexpr const char* kQuestion = "Programmet använder Microsoft Data Access Components. Vill du "
                                  "installera dem nu?";

class DataAccessTest : public SetupFixture {
protected:
    DataAccessTest()
    {
        AddFile("MDAC_TYP.ZIP", "%DESTDIR", "data access", "W");
        databases.MDAHiddenInstall = kOff;
        databases.MDAAskUser = kOff;
    }
    ExitCode InstallWith(std::deque<ExpectedBox> boxes)
    {
        ScriptedAsk user(std::move(boxes));
        ask = &user;
        const ExitCode code = Install("");
        ask = nullptr;
        return code;
    }
    section::Databases& databases = project.Databases;
};

TEST_F(DataAccessTest, IsRunWhenTheProductIsInstalled)
{
    target.onProgram = [&](const ProgramRun& run) {
        EXPECT_EQ(memory.files.Get(run.program), "data access");
        EXPECT_TRUE(memory.files.FileExists("C:\\Program\\Exempel\\QNXUNIN.LOG"));
    };
    EXPECT_EQ(InstallWith({}), ExitCode::Done);
    EXPECT_THAT(target.programsRun, ElementsAre(kCopy));
    EXPECT_FALSE(memory.files.FileExists(kCopy));
    EXPECT_THAT(Log(), HasSubstr("MDAC_TYP.EXE slutade med kod 0"));
}

TEST_F(DataAccessTest, IsHiddenWhereTheProjectOrSilenceWantsIt)
{
    databases.MDAHiddenInstall = kOn;
    EXPECT_EQ(InstallWith({}), ExitCode::Done);
    databases.MDAHiddenInstall = kOff;
    EXPECT_EQ(Install("/S"), ExitCode::Done);
    const Text hidden = Text(kCopy) + " /Q /C:\"setup /QNT\" (hidden)";
    EXPECT_THAT(target.programsRun, ElementsAre(hidden, hidden));
}

TEST_F(DataAccessTest, AsksFirstWhereTheProjectWantsIt)
{
    databases.MDAAskUser = kOn;
    EXPECT_EQ(InstallWith({{BoxKind::YesNo, kTitle, kQuestion, Answer::No}}), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("installationen av dataåtkomst (MDAC_TYP.ZIP): användaren vill "
                                 "inte"));
    EXPECT_EQ(Install("/S"), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("dataåtkomst (MDAC_TYP.ZIP): startas inte när ingenting visas"));
    EXPECT_THAT(target.programsRun, IsEmpty());
    EXPECT_EQ(InstallWith({{BoxKind::YesNo, kTitle, kQuestion, Answer::Yes}}), ExitCode::Done);
    EXPECT_THAT(target.programsRun, ElementsAre(kCopy));
}

TEST_F(DataAccessTest, TellsOfARestartAndOfAFailureAndUndoesNothing)
{
    target.programCodes[kCopy] = 3010;
    EXPECT_EQ(Install("/S"), ExitCode::RestartNeeded);
    target.programCodes[kCopy] = 1;
    EXPECT_EQ(Install("/S"), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("dataåtkomst (MDAC_TYP.ZIP): programmet slutade med kod 1"));
    target.onProgram = [](const ProgramRun& run) {
        throw RunError(ErrorNumber::kCannotStart, run.program);
    };
    EXPECT_EQ(Install("/S"), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("dataåtkomst (MDAC_TYP.ZIP): fel 5: '" + Text(kCopy) + "'"));
    EXPECT_TRUE(memory.files.FileExists("C:\\Program\\Exempel\\MDAC_TYP.ZIP"));
}

} // namespace
} // namespace quillon::test
