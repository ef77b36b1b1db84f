// An older setup where a newer version of the product is installed.
#include "runtime/support/setup_fixture.h"

#include "runtime/uninstall_entry_key.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;

constexpr const char* kTitle = "Installation av Exempel";
constexpr const char* kQuestion = "Version 2.10 är redan installerad, och den är nyare än version "
                                  "2.9. Vill du ersätta den med den äldre?";
constexpr const char* kRefusal = "Version 2.10 är redan installerad, och den är nyare än version "
                                 "2.9. Avinstallera den först om du vill ha den äldre.";

class NewerVersionTest : public SetupFixture {
protected:
    NewerVersionTest()
    {
        AddFile("prog.exe", "%DESTDIR", "program", "");
        AddFile("ny.dll", "%DESTDIR", "only in the newer one", "");
        project.Version.ProductVersion = "2.10";
        EXPECT_EQ(Install(), ExitCode::Done) << Log();
        project.Version.ProductVersion = "2.9";
        package.rows.pop_back();
        sources.pop_back();
    }

    ExitCode InstallInVain(const Text& switches, std::deque<ExpectedBox> boxes = {})
    {
        const MachineState before = State();
        const ExitCode code = InstallWith(switches, std::move(boxes));
        EXPECT_EQ(State(), before) << switches;
        return code;
    }
    ExitCode InstallWith(const Text& switches, std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk user(std::move(boxes));
        ask = &user;
        const ExitCode code = Install(switches);
        ask = nullptr;
        return code;
    }
};

TEST_F(NewerVersionTest, StaysWhereNobodyIsAsked)
{
    for (const char* switches : {"/S", "/passive", "/SUPPRESSMSGBOXES"}) {
        EXPECT_EQ(InstallInVain(Text(switches) + " /RESULT=L:\\r.json"), ExitCode::NewerInstalled);
        EXPECT_THAT(Log(), HasSubstr(Text("Avslutar med kod 1638: ") + kRefusal));
        EXPECT_THAT(memory.files.Get("L:\\r.json"),
                    HasSubstr("\"result\":\"newer version installed\""));
    }
}

TEST_F(NewerVersionTest, StaysWhereTheUserSaysNo)
{
    EXPECT_EQ(InstallInVain("", {{BoxKind::YesNo, kTitle, kQuestion, Answer::No}}),
              ExitCode::Cancelled);
}

TEST_F(NewerVersionTest, GivesWayWhereTheUserSaysYes)
{
    EXPECT_EQ(InstallWith("", {{BoxKind::YesNo, kTitle, kQuestion, Answer::Yes}}), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("Version 2.10 är installerad, och den är nyare än version 2.9"));
    EXPECT_FALSE(files.FileExists(kMain + "\\ny.dll"));
    EXPECT_EQ(target.TextAt(UninstallEntryKey("Exempel"), "DisplayVersion"), "2.9");
}

TEST_F(NewerVersionTest, IsNotSpokenOfWhereItIsTheSameOrUnknown)
{
    for (const char* version : {"2.10", "2.10.0", "3", ""}) {
        project.Version.ProductVersion = version;
        EXPECT_EQ(InstallWith("/S"), ExitCode::Done) << version;
    }
    project.Version.ProductVersion = "2.9";
    EXPECT_EQ(InstallWith("/S"), ExitCode::Done) << "the last one has left no version";
}

TEST_F(NewerVersionTest, IsNotSpokenOfWhereItsFolderHasGone)
{
    const RegistryKey entry = UninstallEntryKey("Exempel");
    target.WriteValue(entry, "InstallLocation", TextData("C:\\Borta"));
    EXPECT_EQ(InstallWith("/S"), ExitCode::Done);
}

TEST_F(NewerVersionTest, OfOtherUsersIsAnotherInstallation)
{
    memory.files.PutFolder("C:\\Data\\Local");
    EXPECT_EQ(InstallWith("/S /CURRENTUSER"), ExitCode::Done) << Log();
}

TEST_F(NewerVersionTest, IsToldByThePlanToo)
{
    EXPECT_EQ(InstallInVain("/S /PLAN=L:\\plan.json"), ExitCode::NewerInstalled);
    EXPECT_FALSE(memory.files.FileExists("L:\\plan.json"));
    EXPECT_EQ(InstallInVain("/PLAN=L:\\plan.json", {{BoxKind::Inform, kTitle}}), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("Version 2.10 är installerad, och den är nyare än version 2.9"));
}

} // namespace
} // namespace quillon::test
