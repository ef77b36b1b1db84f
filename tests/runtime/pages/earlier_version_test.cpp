// An update of a product that is installed for the current user alone, or for the whole machine.
#include "runtime/support/setup_fixture.h"

#include "runtime/pages/earlier_version.h"
#include "runtime/uninstall_entry_key.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;

const Text kOwnFolder = "C:\\Data\\Local\\Programs\\Exempel";

class UpdateScope : public SetupFixture {
protected:
    UpdateScope()
    {
        AddFile("prog.exe", "%DESTDIR", "program", "").iconMarker = "IKON";
        package.rows[0].iconTitle = "Exempel";
        project.Updates.HandleUpdate = kOn;
        project.Version.ProductVersion = "1.0";
        memory.files.PutFolder("C:\\Data\\Local");
        target.keys[{RegistryRoot::CurrentUser, "software"}] = {"SOFTWARE", {}};
    }
    void MakeNewer()
    {
        project.Version.ProductVersion = "2.0";
        sources[0].bytes = "newer program";
        package.rows[0].size = sources[0].bytes.size();
    }
    Text VersionFor(InstallScope scope) const
    {
        return target.TextAt(UninstallEntryKey("Exempel", scope), "DisplayVersion");
    }
};

TEST_F(UpdateScope, IsThatOfTheVersionThatIsInstalledForTheCurrentUser)
{
    project.ProgramGroup.ProgramGroup_AllUsers = kOn;
    const MachineState before = State();
    ASSERT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    MakeNewer();
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get(kOwnFolder + "\\prog.exe"), "newer program");
    EXPECT_FALSE(files.DirExists(kMain));
    EXPECT_EQ(VersionFor(InstallScope::CurrentUser), "2.0");
    EXPECT_EQ(VersionFor(InstallScope::Project), "<none>");
    EXPECT_TRUE(files.FileExists("C:\\Ulla\\Start-meny\\Program\\Exempelgrupp\\Exempel.lnk"));
    EXPECT_EQ(UninstallProduct(kOwnFolder + "\\QNXUNIN.LOG"), ExitCode::Done) << Log();
    EXPECT_EQ(State(), before);
}

TEST_F(UpdateScope, IsNotChangedByAnotherFolder)
{
    ASSERT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    MakeNewer();
    ASSERT_EQ(Install("/S /D=C:\\Egen"), ExitCode::Done) << Log();
    EXPECT_EQ(VersionFor(InstallScope::CurrentUser), "2.0");
    EXPECT_EQ(VersionFor(InstallScope::Project), "<none>");
}

TEST_F(UpdateScope, IsThatOfTheMachineWhereTheProductIsInstalledForBoth)
{
    ASSERT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    ASSERT_EQ(Install("/S /ALLUSERS"), ExitCode::Done) << Log();
    MakeNewer();
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(VersionFor(InstallScope::Project), "2.0");
    EXPECT_EQ(VersionFor(InstallScope::CurrentUser), "1.0");
    EXPECT_EQ(memory.files.Get(kMain + "\\prog.exe"), "newer program");
}

// What is left of an entry for the machine does not hide the version that is there.
TEST_F(UpdateScope, IsNotThatOfAVersionWhoseFolderHasGone)
{
    const RegistryKey entry = UninstallEntryKey("Exempel");
    target.MakeKey(entry);
    target.WriteValue(entry, "InstallLocation", TextData("E:\\Borta"));
    ASSERT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    MakeNewer();
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(VersionFor(InstallScope::CurrentUser), "2.0");
}

TEST_F(UpdateScope, IsTheOneThatASwitchNames)
{
    ASSERT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    MakeNewer();
    ASSERT_EQ(Install("/S /ALLUSERS"), ExitCode::Done) << Log();
    EXPECT_EQ(VersionFor(InstallScope::CurrentUser), "1.0");
    EXPECT_EQ(VersionFor(InstallScope::Project), "2.0");
    EXPECT_EQ(memory.files.Get(kMain + "\\prog.exe"), "newer program");

    ASSERT_EQ(UninstallProduct(kOwnFolder + "\\QNXUNIN.LOG"), ExitCode::Done) << Log();
    ASSERT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    EXPECT_EQ(VersionFor(InstallScope::CurrentUser), "2.0");
}

TEST_F(UpdateScope, IsThatOfTheProjectWhereItHandlesNoUpdates)
{
    ASSERT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    project.Updates.HandleUpdate = kOff;
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(VersionFor(InstallScope::Project), "1.0");
}

TEST_F(UpdateScope, IsAskedForWhichVersionIsTheNewerOne)
{
    MakeNewer();
    ASSERT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    project.Version.ProductVersion = "1.0";
    EXPECT_EQ(Install(), ExitCode::NewerInstalled);
    EXPECT_EQ(VersionFor(InstallScope::CurrentUser), "2.0");
}

// What the new version would do for all users is not done in the name of one.
TEST_F(UpdateScope, ForbidsWhatTheMachineShares)
{
    ASSERT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    project.Lists.Registry = "HKEY_LOCAL_MACHINE\\Software\\Firma :: Namn=\"Värde\"";
    EXPECT_EQ(Install(), ExitCode::Forbidden);
    EXPECT_THAT(Log(), HasSubstr("HKEY_LOCAL_MACHINE\\Software\\Firma"));
}

TEST_F(UpdateScope, IsToldByThePlan)
{
    ASSERT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    ASSERT_EQ(Install("/S /PLAN=L:\\plan.json"), ExitCode::Done) << Log();
    const std::string plan = memory.files.Get("L:\\plan.json");
    EXPECT_THAT(plan, HasSubstr("\"scope\":\"currentUser\""));
    EXPECT_THAT(plan, HasSubstr("\"entry\":\"HKEY_CURRENT_USER"));
}

// The project's own key names the folder, the list of programs for whom it is.
TEST_F(UpdateScope, IsTheListedOneWhereTheProjectsKeyNamesTheFolder)
{
    ASSERT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    const RegistryKey own{RegistryRoot::LocalMachine, "SOFTWARE\\Firma"};
    target.MakeKey(own);
    target.WriteValue(own, "Plats", TextData("E:\\Egen"));
    memory.files.PutFolder("E:\\Egen");
    project.Updates.AdvUpdateRegHKEYIndex = 2;
    project.Updates.AdvUpdateRegSubKey = own.subKey;
    project.Updates.AdvUpdateRegValueName = "Plats";
    project.Updates.AdvUpdateRegAlwaysUseUserDefKey = kOn;
    EXPECT_EQ(FindEarlierVersion(package.setup, host, target),
              (EarlierVersion{"E:\\Egen", InstallScope::CurrentUser}));
    EXPECT_EQ(FindEarlierVersion(package.setup, host, target, InstallScope::AllUsers),
              (EarlierVersion{"E:\\Egen", InstallScope::AllUsers}));
}

} // namespace
} // namespace quillon::test
