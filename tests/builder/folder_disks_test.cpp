#include "builder/folder_disks.h"

#include "platform/posix/posix_host.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"
#include "support/temp_folder.h"

namespace quillon {
namespace {

class FolderDisksTest : public testing::Test {
protected:
    test::MemoryHost memory;
    FolderDisks disks{memory.host, "C:\\Ut\\"};

    void SetUp() override { memory.files.PutFolder("C:\\Ut"); }
};

TEST_F(FolderDisksTest, AnEmptyFolderHoldsAWholeDisk)
{
    EXPECT_EQ(disks.Capacity("C:\\Ut"), 1457664U);
}

TEST_F(FolderDisksTest, FilesTakeWholeClusters)
{
    memory.files.Put("C:\\Ut\\a", "");
    memory.files.Put("C:\\Ut\\b", "1");
    memory.files.Put("C:\\Ut\\c", std::string(513, 'x'));
    memory.files.Put("C:\\Ut\\sub\\d", std::string(512, 'x'));
    EXPECT_EQ(disks.Capacity("C:\\Ut\\"), 1457664U - 512 - 1024 - 512);
}

TEST_F(FolderDisksTest, OtherDisksInThePackageFolderTakeNothingOfTheFirst)
{
    memory.files.Put("C:\\Ut\\disk2\\FILEDATA.DAT", std::string(1000, 'x'));
    memory.files.Put("C:\\Ut\\Disk10\\FILEDATA.DAT", std::string(1000, 'x'));
    memory.files.Put("C:\\Ut\\disk\\a", "1");
    memory.files.Put("C:\\Ut\\disk2x\\a", "1");
    EXPECT_EQ(disks.Capacity("C:\\Ut"), 1457664U - 1024);
    EXPECT_EQ(disks.Capacity("C:\\Ut\\disk2"), 1457664U - 1024);
}

TEST_F(FolderDisksTest, AFolderThatHoldsTooMuchHasNoRoom)
{
    memory.files.Put("C:\\Ut\\big", std::string(1457665, 'x'));
    EXPECT_EQ(disks.Capacity("C:\\Ut"), 0U);
}

TEST_F(FolderDisksTest, TheRootOfADriveHasWhatIsFreeThere)
{
    memory.files.capacities["a:\\"] = 730112;
    memory.files.Put("A:\\a", std::string(112, 'x'));
    EXPECT_EQ(disks.Capacity("A:\\"), 730000U);
    EXPECT_EQ(disks.Capacity("A:"), 730000U);
}

TEST_F(FolderDisksTest, LeaveRoomForTheManifestOfAsManyDisksAsThereWillBe)
{
    constexpr std::uint64_t kLongLine = 96;
    for (const std::uint64_t further : {0U, 1U, 9U, 400U}) {
        const std::uint64_t room = disks.ReservedBytes(further * kDiskCapacity);
        EXPECT_GE(room, (further + 20) * kLongLine) << further;
        EXPECT_EQ(room % 512, 0U);
    }
}

TEST_F(FolderDisksTest, MakesTheNextDiskAndTakesAnOldPieceOut)
{
    memory.files.Put("C:\\Ut\\disk2\\FILEDATA.DAT", "old");
    EXPECT_EQ(disks.NextDisk(2), "C:\\Ut\\disk2");
    EXPECT_FALSE(memory.files.FileExists("C:\\Ut\\disk2\\FILEDATA.DAT"));
    EXPECT_EQ(disks.NextDisk(3), "C:\\Ut\\disk3");
    EXPECT_TRUE(memory.files.DirExists("C:\\Ut\\disk3"));
}

TEST_F(FolderDisksTest, ClearsTheDisksOfAnEarlierPackageAway)
{
    for (const char* folder : {"disk2", "disk3", "disk4"})
        memory.files.Put(Text("C:\\Ut\\") + folder + "\\FILEDATA.DAT", "old");
    memory.files.Put("C:\\Ut\\disk4\\letter.txt", "the user's own");
    memory.files.Put("C:\\Ut\\disk6\\FILEDATA.DAT", "no disk of a row");
    disks.RemoveDisksBehind(2);
    EXPECT_TRUE(memory.files.FileExists("C:\\Ut\\disk2\\FILEDATA.DAT"));
    EXPECT_FALSE(memory.files.DirExists("C:\\Ut\\disk3"));
    EXPECT_FALSE(memory.files.FileExists("C:\\Ut\\disk4\\FILEDATA.DAT"));
    EXPECT_TRUE(memory.files.FileExists("C:\\Ut\\disk4\\letter.txt"));
    EXPECT_TRUE(memory.files.FileExists("C:\\Ut\\disk6\\FILEDATA.DAT"));
}

TEST_F(FolderDisksTest, NoDiskComesWhereItsFolderCannotBeMade)
{
    memory.files.refuseFolders = true;
    EXPECT_EQ(disks.NextDisk(2), std::nullopt);
}

using test::BoxKind;
using test::ScriptedAsk;

test::ExpectedBox DiskBox(const Text& number, Answer answer = Answer::Yes)
{
    return {BoxKind::OkCancel, "Diskett", "Stoppa in diskett nr " + number + "!", answer};
}

TEST(AskedDisks, AskForTheNextDiskUntilTheDriveHasOne)
{
    const test::TempFolder disk;
    PosixHost system{MachineSettings{.drives = {{'A', disk.Path("floppy")}}, .tempFolder = "/tmp"}};
    ScriptedAsk ask({DiskBox("2"), DiskBox("2", Answer::Cancel), DiskBox("3")});
    AskedDisks disks(system.host, ask, "A:\\");
    EXPECT_EQ(disks.NextDisk(2), std::nullopt) << "the drive was empty, and then came a Cancel";
    disk.PutFolder("floppy");
    EXPECT_EQ(disks.NextDisk(3), "A:");
}

TEST(AskedDisks, AskForTheFirstDiskUntilItIsThere)
{
    test::MemoryHost memory;
    memory.files.PutFolder("A:\\");
    ScriptedAsk ask({DiskBox("1"), DiskBox("1", Answer::Cancel), DiskBox("1")});
    AskedDisks disks(memory.host, ask, "A:\\");
    EXPECT_FALSE(disks.FirstDiskAgain());
    memory.files.Put("A:\\QNSETUP.INF", "");
    EXPECT_TRUE(disks.FirstDiskAgain());
}

TEST(AskedDisks, AskNothingWhereFoldersStandForDisks)
{
    test::MemoryHost memory;
    memory.files.PutFolder("C:\\Ut");
    ScriptedAsk ask;
    AskedDisks disks(memory.host, ask, "C:\\Ut");
    EXPECT_EQ(disks.NextDisk(2), "C:\\Ut\\disk2");
    EXPECT_TRUE(disks.FirstDiskAgain());
}

} // namespace
} // namespace quillon
