#include "platform/posix/user_directories.h"

#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

class UserDirectoriesTest : public testing::Test {
protected:
    std::optional<std::string> Find(const std::string& lines) const
    {
        disk.Put("user-dirs.dirs", lines);
        return FindUserDirectory(disk.Path("user-dirs.dirs"), "XDG_DOCUMENTS_DIR", "/home/ulla");
    }

    test::TempFolder disk;
};

TEST_F(UserDirectoriesTest, LieBelowHomeOrAnywhere)
{
    EXPECT_EQ(Find("# Kommentar\nXDG_DESKTOP_DIR=\"$HOME/Skrivbord\"\n"
                   "XDG_DOCUMENTS_DIR=\"$HOME/Mina dokument\"\n"),
              "/home/ulla/Mina dokument");
    EXPECT_EQ(Find("  XDG_DOCUMENTS_DIR = \"/data/å\"  \r\n"), "/data/å");
    EXPECT_EQ(Find("XDG_DOCUMENTS_DIR=\"$HOME\"\n"), "/home/ulla");
    EXPECT_EQ(Find("XDG_DOCUMENTS_DIR=\"/a\\\"b\\\\c\"\n"), "/a\"b\\c");
}

TEST_F(UserDirectoriesTest, TakeTheLastLineAsAShellDoes)
{
    EXPECT_EQ(Find("XDG_DOCUMENTS_DIR=\"/a\"\nXDG_DOCUMENTS_DIR=\"/b\"\n"), "/b");
}

TEST_F(UserDirectoriesTest, AreNoneWhereNoLineNamesOne)
{
    for (const char* lines :
         {"", "\n", "=\n", "XDG_DOCUMENTS_DIR\n", "XDG_DOCUMENTS_DIR=\n",
          "XDG_DOCUMENTS_DIR=\"/a\n", "XDG_DOCUMENTS_DIR=/a\n", "XDG_DOCUMENTS_DIR=\"a\"\n",
          "XDG_DOCUMENTS_DIR=\"$HOMEx\"\n", "#XDG_DOCUMENTS_DIR=\"/a\"\n"})
        EXPECT_EQ(Find(lines), std::nullopt) << lines;
    EXPECT_EQ(FindUserDirectory(disk.Path("missing"), "XDG_DOCUMENTS_DIR", "/home/ulla"),
              std::nullopt);
}

} // namespace
} // namespace quillon
