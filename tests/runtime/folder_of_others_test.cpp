// A main folder that somebody else has made: what is installed there could be exchanged.
#include "setup_fixture.h"

namespace quillon {
namespace {

using testing::HasSubstr;

using test::kMain;

class FolderOfOthers : public test::SetupFixture {
protected:
    FolderOfOthers() { AddFile("prog.exe", "%DESTDIR", "program"); }

    void ExpectRefused(const Text& folder)
    {
        const test::MachineState before = State();
        EXPECT_EQ(Install(), ExitCode::Failed);
        EXPECT_EQ(State(), before);
        EXPECT_THAT(Log(), HasSubstr("Mappen '" + folder +
                                     "' har skapats av en annan användare, som kan byta ut det som "
                                     "installeras där. Välj en annan mapp."));
    }
};

TEST_F(FolderOfOthers, IsRefused)
{
    memory.files.PutFolder(kMain);
    target.ofOthers.insert(kMain);
    ExpectRefused(kMain);
}

TEST_F(FolderOfOthers, IsRefusedAboveTheMainFolderToo)
{
    target.ofOthers.insert("C:\\Program");
    ExpectRefused("C:\\Program");
}

TEST_F(FolderOfOthers, IsRefusedForAnUpdate)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    target.ofOthers.insert(kMain);
    sources[0].bytes = "version 2";
    ExpectRefused(kMain);
}

TEST_F(FolderOfOthers, IsTheOneThatTheUserHasChosen)
{
    target.ofOthers.insert("C:\\Program");
    EXPECT_EQ(Install("/S /D=C:\\Egen"), ExitCode::Done) << Log();
}

// The root of a drive belongs to the system or, on a disk from elsewhere, to nobody known here.
TEST_F(FolderOfOthers, IsNoRootAndNoFolderOnADiskThatIsCarriedAbout)
{
    target.ofOthers.insert("C:\\");
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    memory.files.PutFolder("E:\\Program");
    memory.files.driveKinds["e:\\"] = DriveKind::Removable;
    target.ofOthers.insert("E:\\Program");
    EXPECT_EQ(Install("/S /D=E:\\Program\\Exempel"), ExitCode::Done) << Log();
}

} // namespace
} // namespace quillon
