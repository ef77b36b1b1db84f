#include "platform/posix/drive_map.h"

#include "support/temp_folder.h"

#include <fstream>

namespace quillon {
namespace {

class DriveMapTest : public testing::Test {
protected:
    test::TempFolder disk;
    DriveMap drives{{{'Z', "/"}, {'S', disk.Path()}}};

    /// The host path of a path on drive S:, below its folder.
    std::string OnDisk(const Text& windowsPath) const
    {
        const auto path = drives.ToHost(windowsPath);
        if (!path)
            return "(nothing)";
        EXPECT_EQ(path->compare(0, disk.Path().size(), disk.Path()), 0) << *path;
        return path->substr(disk.Path().size());
    }
};

TEST_F(DriveMapTest, FindsTheExactSpellingBeforeAnyOther)
{
    disk.Put("Data/readme.txt", "");
    disk.Put("Data/README.TXT", "");
    disk.Put("Data/ReadMe.txt", "");
    EXPECT_EQ(OnDisk("S:\\Data\\readme.txt"), "/Data/readme.txt");
    EXPECT_EQ(OnDisk("S:\\Data\\ReadMe.txt"), "/Data/ReadMe.txt");
}

TEST_F(DriveMapTest, FindsTheOneNameThatDiffersInCaseAlone)
{
    disk.Put("Data/Sub Folder/ÅÄÖ och žŠ.TXT", "");
    EXPECT_EQ(OnDisk("s:\\data\\sub folder\\åäö och Žš.txt"), "/Data/Sub Folder/ÅÄÖ och žŠ.TXT");
}

TEST_F(DriveMapTest, TakesTheFirstInByteOrderOfSeveralSpellings)
{
    disk.Put("readme.Txt", "");
    disk.Put("ReadMe.txt", "");
    disk.Put("README.txt", "");
    EXPECT_EQ(OnDisk("S:\\readme.txt"), "/README.txt");
}

TEST_F(DriveMapTest, LooksForAMissingTailInTheFolderThatIsThere)
{
    disk.PutFolder("Data/Ut");
    EXPECT_EQ(OnDisk("S:\\DATA\\ut\\Ny\\Fil.txt"), "/Data/Ut/Ny/Fil.txt");
}

TEST_F(DriveMapTest, SeesWhatAnotherProgramDoesBetweenTwoLookUps)
{
    disk.PutFolder("Data");
    EXPECT_EQ(OnDisk("S:\\data\\A.TXT"), "/Data/A.TXT");
    disk.Put("Data/a.txt", "");
    EXPECT_EQ(OnDisk("S:\\data\\A.TXT"), "/Data/a.txt");
    std::filesystem::remove(disk.Path("Data/a.txt"));
    EXPECT_EQ(OnDisk("S:\\data\\A.TXT"), "/Data/A.TXT");
    disk.Put("Data/A.txt", "");
    EXPECT_EQ(OnDisk("S:\\data\\a.TXT"), "/Data/A.txt");
    std::filesystem::rename(disk.Path("Data/A.txt"), disk.Path("Data/a.tXt"));
    EXPECT_EQ(OnDisk("S:\\data\\a.TXT"), "/Data/a.tXt");
}

TEST_F(DriveMapTest, NeverLeavesADriveByItsParent)
{
    disk.Put("a.txt", "");
    EXPECT_EQ(OnDisk("S:\\..\\..\\etc\\passwd"), "/etc/passwd");
    EXPECT_EQ(OnDisk("S:\\..\\a.txt"), "/a.txt");
    EXPECT_EQ(OnDisk("S:\\missing\\..\\a.txt"), "/a.txt");
    EXPECT_EQ(OnDisk("S:\\.\\a.txt"), "/a.txt");
    EXPECT_EQ(OnDisk("S:/../a.txt"), "/a.txt");
    EXPECT_EQ(OnDisk("S:.."), "");
}

TEST_F(DriveMapTest, TakesRootsInAllTheirForms)
{
    EXPECT_EQ(OnDisk("S:"), "");
    EXPECT_EQ(OnDisk("S:\\"), "");
    EXPECT_EQ(OnDisk("s:\\\\"), "");
    EXPECT_EQ(drives.ToHost("Z:\\"), "/");
    EXPECT_EQ(drives.ToHost("z:"), "/");
}

TEST_F(DriveMapTest, KnowsNothingOfFreeLettersAndNetworkPaths)
{
    for (const char* path : {"Q:\\a.txt", "\\\\server\\share\\a.txt", "\\a.txt", "//a", ""})
        EXPECT_FALSE(drives.ToHost(path)) << path;
    EXPECT_FALSE(drives.ToHost(Text("S:\\a\0b", 6)));
}

TEST_F(DriveMapTest, TakesAPathWithoutDriveFromTheWorkingFolder)
{
    EXPECT_EQ(drives.ToHost("sub\\a.txt"),
              (std::filesystem::current_path() / "sub/a.txt").string());
}

TEST_F(DriveMapTest, NamesAHostPathByTheDriveThatHoldsItMostClosely)
{
    const DriveMap nested{{{'Z', "/"}, {'s', "/srv/src"}, {'T', "/srv/src/tools/"}}};
    EXPECT_EQ(nested.ToWindows("/srv/src/a/b.txt"), "S:\\a\\b.txt");
    EXPECT_EQ(nested.ToWindows("/srv/src/tools/x"), "T:\\x");
    EXPECT_EQ(nested.ToWindows("/srv/src/toolsx"), "S:\\toolsx");
    EXPECT_EQ(nested.ToWindows("/srv/src"), "S:\\");
    EXPECT_EQ(nested.ToWindows("/srv/src/"), "S:\\");
    EXPECT_EQ(nested.ToWindows("/srv/other"), "Z:\\srv\\other");
    EXPECT_EQ(nested.ToWindows("/"), "Z:\\");
    EXPECT_EQ(nested.ToWindows("/srv/./src/a"), "S:\\a");
    EXPECT_EQ(nested.ToWindows("/srv/x/../src/a"), "S:\\a");
}

TEST_F(DriveMapTest, NamesARelativeHostPathFromTheWorkingFolder)
{
    const Text here = *drives.ToWindows(std::filesystem::current_path().string());
    EXPECT_EQ(drives.ToWindows("a/b.txt"), here + "\\a\\b.txt");
}

TEST_F(DriveMapTest, HasNoNameForABackslashInAHostPath)
{
    EXPECT_FALSE(drives.ToWindows("/srv/a\\b"));
}

TEST_F(DriveMapTest, GoesRoundFromWindowsToHostAndBack)
{
    disk.Put("Deep/Folder/Fil.TXT", "");
    const std::string host = *drives.ToHost("s:\\deep\\folder\\fil.txt");
    EXPECT_EQ(drives.ToWindows(host), "S:\\Deep\\Folder\\Fil.TXT");
}

TEST_F(DriveMapTest, TakesAFolderOfADriveFromElsewhere)
{
    disk.Put("hem/Dokument/Brev/Läs.txt", "");
    disk.PutFolder("c/Mina dokument sedan");
    const DriveMap map({{'Z', "/"}, {'C', disk.Path("c")}},
                       {{"C:\\Mina dokument", disk.Path("hem/Dokument/")},
                        {"C:\\Users\\ulla\\Data", disk.Path("hem/.config")},
                        {"C:\\Users\\ulla\\Data\\Mallar", disk.Path("hem/Mallar")}});
    const auto onDisk = [&](const Text& path) {
        return map.ToHost(path).value_or("").substr(disk.Path().size());
    };
    EXPECT_EQ(onDisk("c:\\mina DOKUMENT\\brev\\läs.TXT"), "/hem/Dokument/Brev/Läs.txt");
    EXPECT_EQ(onDisk("C:/Mina dokument"), "/hem/Dokument");
    EXPECT_EQ(onDisk("C:\\x\\..\\Mina dokument\\a"), "/hem/Dokument/a");
    EXPECT_EQ(onDisk("C:\\Mina dokument\\..\\a"), "/c/a") << "it lies in the drive";
    EXPECT_EQ(onDisk("C:\\Mina dokument sedan\\a"), "/c/Mina dokument sedan/a");
    EXPECT_EQ(onDisk("C:\\Users\\ulla\\Data\\x"), "/hem/.config/x");
    EXPECT_EQ(onDisk("C:\\Users\\ULLA\\Data\\mallar\\x"), "/hem/Mallar/x");
    EXPECT_EQ(map.ToHost("Z:\\Mina dokument"), "/Mina dokument");

    EXPECT_EQ(map.ToWindows(disk.Path("hem/Dokument/Brev")), "C:\\Mina dokument\\Brev");
    EXPECT_EQ(map.ToWindows(disk.Path("hem/Dokument")), "C:\\Mina dokument");
    EXPECT_EQ(map.ToWindows(disk.Path("c/a")), "C:\\a");
    EXPECT_TRUE(map.ToWindows(disk.Path("hem/Dokument2"))->starts_with("Z:\\"));
    EXPECT_TRUE(map.IsMappedFolder("c:\\MINA dokument"));
    EXPECT_FALSE(map.IsMappedFolder("C:\\Mina dokument\\Brev"));
}

TEST_F(DriveMapTest, TheFirstOfTwoEqualLettersCounts)
{
    const DriveMap twice{{{'S', "/one"}, {'s', "/two"}}};
    EXPECT_EQ(twice.FolderOf('S'), "/one");
    EXPECT_FALSE(twice.FolderOf('T'));
}

} // namespace
} // namespace quillon
