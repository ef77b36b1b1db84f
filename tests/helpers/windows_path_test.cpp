#include "helpers/windows_path.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(ExtractFilename, IsWhatStandsBehindTheLastBackslash)
{
    EXPECT_EQ(ExtractFilename("C:\\Data\\a.txt"), "a.txt");
    EXPECT_EQ(ExtractFilename("a.txt"), "a.txt");
    EXPECT_EQ(ExtractFilename("C:\\Data\\"), "");
}

TEST(ExtractDirectory, KeepsTheBackslashOfARootAlone)
{
    EXPECT_EQ(ExtractDirectory("C:\\Data\\a.txt"), "C:\\Data");
    EXPECT_EQ(ExtractDirectory("C:\\a.txt"), "C:\\");
    EXPECT_EQ(ExtractDirectory("a.txt"), "");
}

TEST(HasFolder, IsTrueOfMoreThanAName)
{
    for (const char* const name : {"", "a.dll", "..", "C:a.dll"})
        EXPECT_FALSE(HasFolder(name)) << name;
    for (const char* const path : {"C:\\a.dll", "..\\a.dll", "sub/a.dll", "a\\"})
        EXPECT_TRUE(HasFolder(path)) << path;
}

TEST(PathFunctions, AnswerWithAtMost300Characters)
{
    const Text name(400, 'x');
    EXPECT_EQ(ExtractFilename("C:\\" + name).size(), 300U);
    EXPECT_EQ(ExtractDirectory("C:\\" + name + "\\a").size(), 300U);
    EXPECT_EQ(RemoveLastBackslash(name).size(), 300U);
    EXPECT_EQ(RemoveDupBackslashesEx(name).size(), 300U);
    EXPECT_EQ(ChangeFilenameExt(name, "b").size(), 300U);
}

TEST(ChangeFilenameExt, ReplacesTheLastExtensionOfTheName)
{
    EXPECT_EQ(ChangeFilenameExt("grid32.ocx", "DEP"), "grid32.DEP");
    EXPECT_EQ(ChangeFilenameExt("a.b.dll", "DEP"), "a.b.DEP");
    EXPECT_EQ(ChangeFilenameExt("readme", "txt"), "readme.txt");
    EXPECT_EQ(ChangeFilenameExt("C:\\v1.2\\readme", "txt"), "C:\\v1.2\\readme.txt");
}

TEST(ExtensionFromFirstDot, CountsFromTheLeft)
{
    EXPECT_EQ(ExtensionFromFirstDot("a.b.ttf"), "b.ttf");
    EXPECT_EQ(ExtensionFromFirstDot("a.ttf"), "ttf");
    EXPECT_EQ(ExtensionFromFirstDot("readme"), "");
}

TEST(Backslashes, AreTakenOffAndMadeSingle)
{
    EXPECT_EQ(RemoveLastBackslash("C:\\Data\\"), "C:\\Data");
    EXPECT_EQ(RemoveLastBackslash("C:\\"), "C:");
    EXPECT_EQ(RemoveLastBackslash(""), "");
    EXPECT_EQ(RemoveDupBackslashesEx("C:\\\\Data\\\\\\a"), "C:\\Data\\a");
    EXPECT_EQ(RemoveDupBackslashesEx("\\\\server\\\\a"), "\\\\server\\a");
    EXPECT_EQ(JoinPath("C:\\", "a"), "C:\\a");
    EXPECT_EQ(JoinPath("C:\\Data", "a"), "C:\\Data\\a");
}

TEST(DisplayCase, RaisesTheFirstLetterAndEachBehindABackslash)
{
    EXPECT_EQ(FormatPathForDisplay("C:\\WINDOWS\\SYSTEM32"), "C:\\Windows\\System32");
    EXPECT_EQ(FormatPathForDisplay("c:\\ÅRET\\ökad plats"), "C:\\Året\\Ökad plats");
    EXPECT_EQ(PrettyPath("C:\\QUILLON"), "C:\\Quillon");
}

TEST(WithoutDrive, LeavesTheWayBelowTheRoot)
{
    EXPECT_EQ(WithoutDrive("c:\\data\\a.txt"), "data\\a.txt");
    EXPECT_EQ(WithoutDrive("c:\\"), "");
    EXPECT_EQ(WithoutDrive("\\\\server\\x\\a"), "server\\x\\a");
}

TEST(PathParts, AreTheNamesBetweenSeparators)
{
    using Parts = std::vector<Text>;
    EXPECT_EQ(PathParts("C:\\data/a.txt"), (Parts{"C:", "data", "a.txt"}));
    EXPECT_EQ(PathParts("\\\\a\\\\..\\. \\"), (Parts{"a", "..", ". "}));
    EXPECT_EQ(PathParts("\\/"), Parts{});
    EXPECT_EQ(PathParts(""), Parts{});
    EXPECT_EQ(PathParts("Software\\a/b", "\\"), (Parts{"Software", "a/b"}));
}

TEST(ResolvePath, WorksOutDotsAndBackslashes)
{
    const std::pair<const char*, const char*> cases[] = {
        {"C:\\Data\\..\\App\\a.txt", "C:\\App\\a.txt"},
        {"C:\\Data\\.\\a.txt", "C:\\Data\\a.txt"},
        {"C:\\Data\\\\a.txt", "C:\\Data\\a.txt"},
        {"C:/Data/b/../a.txt", "C:\\Data\\a.txt"},
        {"C:\\..\\..\\a.txt", "C:\\a.txt"},
        {"C:\\Data\\..", "C:\\"},
        {"C:\\", "C:\\"},
        {"C:\\Data\\...\\a.txt", "C:\\Data\\...\\a.txt"},
        {"\\\\server\\share\\..\\..\\a.txt", "\\\\server\\share\\a.txt"},
        {"\\\\server\\share\\x\\..\\a.txt", "\\\\server\\share\\a.txt"},
        {"\\x\\..\\a.txt", "\\a.txt"},
        {"a.txt", "a.txt"},
        {"..\\a.txt", "a.txt"},
        {"", ""},
    };
    for (const auto& [path, resolved] : cases)
        EXPECT_EQ(ResolvePath(path), resolved) << path;
}

} // namespace quillon
