// Shortcuts of an earlier version that the new one lacks, in the group and outside it.
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/support/setup_fixture.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace quillon::test {
namespace {

using nlohmann::json;
using testing::HasSubstr;

const Text kOnDesktop = "C:\\Ulla\\Skrivbord\\Gammalt namn.lnk";
const Text kInGroup = "C:\\Ulla\\Start-meny\\Program\\Exempelgrupp\\Gammalt namn.lnk";

class OldShortcutsTest : public SetupFixture {
protected:
    OldShortcutsTest()
    {
        InstallRow& row = AddFile("prog.exe", "%DESTDIR", "program");
        row.iconMarker = "IKOND";
        row.iconTitle = "Gammalt namn";
        row.iconParameters = "/a";
        project.InstallOptions.DeleteProgGroup = kOff;
    }
    void Update(const Text& switches = "/S")
    {
        package.rows[0].iconTitle = "Nytt namn";
        EXPECT_EQ(Install(switches), ExitCode::Done) << Log();
    }
    void ExpectKept(const Text& path, const char* reason)
    {
        EXPECT_TRUE(memory.files.FileExists(path));
        EXPECT_THAT(Log(), HasSubstr("Hoppar över " + path + ": " + reason));
    }
};

TEST_F(OldShortcutsTest, GoWhereverTheyAre)
{
    const MachineState before = State();
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    ASSERT_TRUE(memory.files.FileExists(kOnDesktop));
    Update();
    EXPECT_FALSE(memory.files.FileExists(kOnDesktop));
    EXPECT_FALSE(memory.files.FileExists(kInGroup));
    EXPECT_THAT(Log(), HasSubstr("Tar bort den gamla genvägen " + kOnDesktop));
    EXPECT_TRUE(memory.files.FileExists("C:\\Ulla\\Skrivbord\\Nytt namn.lnk"));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done) << Log();
    EXPECT_EQ(State(), before);
}

TEST_F(OldShortcutsTest, GoWithTheGroupThatTheyWereIn)
{
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    project.ProgramGroup.ProgramGroup = "Ny grupp";
    Update();
    EXPECT_FALSE(memory.files.DirExists(ExtractDirectory(kInGroup)));
    EXPECT_TRUE(memory.files.FileExists("C:\\Ulla\\Start-meny\\Program\\Ny grupp\\Nytt namn.lnk"));
}

TEST_F(OldShortcutsTest, StayWhereSomebodyHasChangedThem)
{
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    memory.files.Put(kOnDesktop, kMain + "\\prog.exe|/b|" + kMain + "||");
    Update();
    ExpectKept(kOnDesktop, "filen har ändrats efter den förra");
    EXPECT_FALSE(memory.files.FileExists(kInGroup));
    // It still belongs to the product, and is removed with it.
    EXPECT_EQ(UninstallProduct(), ExitCode::Done) << Log();
    EXPECT_FALSE(memory.files.FileExists(kOnDesktop));
}

TEST_F(OldShortcutsTest, OfOlderRecordsGoWhereTheyStillLeadToTheProduct)
{
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    ForgetRecordedContents();
    memory.files.Put(kInGroup, "C:\\Annat\\annan.exe||||");
    Update();
    EXPECT_FALSE(memory.files.FileExists(kOnDesktop));
    ExpectKept(kInGroup, "det är okänt om filen har ändrats");
}

TEST_F(OldShortcutsTest, ThatWereThereBeforeTheProductStay)
{
    memory.files.Put(kOnDesktop, "C:\\Annat\\annan.exe||||");
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    Update();
    EXPECT_TRUE(memory.files.FileExists(kOnDesktop));
    EXPECT_FALSE(memory.files.FileExists(kInGroup));
}

TEST_F(OldShortcutsTest, OfAComponentThatIsNotChosenThisTimeStay)
{
    package.setup.UseComponents = kOn;
    project.FileComponents[0] = {.Comp = 1, .CompDefault = 1};
    package.rows[0].component = "1";
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    project.FileComponents[0].CompDefault = 0;
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_TRUE(memory.files.FileExists(kOnDesktop));
    EXPECT_TRUE(memory.files.FileExists(kInGroup));
    project.FileComponents[0].CompDefault = 1;
    Update();
    EXPECT_FALSE(memory.files.FileExists(kOnDesktop));
}

TEST_F(OldShortcutsTest, ComeBackWhereTheUpdateFails)
{
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    const MachineState before = State();
    package.rows[0].iconTitle = "Nytt namn";
    bool hasGone = false;
    files.beforeChange = [&] {
        if (!hasGone && !memory.files.FileExists(kOnDesktop)) {
            hasGone = true;
            throw RunError(ErrorNumber::kDeviceIo, "disken");
        }
    };
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_TRUE(hasGone);
    files.beforeChange = [] {};
    EXPECT_EQ(State(), before);
}

TEST_F(OldShortcutsTest, AreToldByThePlanOnce)
{
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    for (const Flag deletesGroup : {kOff, kOn}) {
        project.InstallOptions.DeleteProgGroup = deletesGroup;
        Update("/S /PLAN=L:\\plan.json");
        const json plan = json::parse(memory.files.Get("L:\\plan.json"));
        EXPECT_TRUE(plan["filesRemoved"].empty());
        EXPECT_THAT(plan["shortcutsRemoved"].get<std::vector<std::string>>(),
                    testing::UnorderedElementsAre(kInGroup, kOnDesktop));
    }
}

} // namespace
} // namespace quillon::test
