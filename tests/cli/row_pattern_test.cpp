#include "cli/row_pattern.h"

#include "cli/call_context.h"

namespace quillon::cli {
namespace {

using testing::ElementsAre;
using Rows = std::vector<std::size_t>;

FileList ListOf(std::initializer_list<const char*> names)
{
    FileList files;
    for (const char* name : names)
        files.rows.emplace_back()[Filename] = name;
    return files;
}

TEST(RowPattern, SelectsRows)
{
    const FileList files = ListOf({"<Dir>", "Prog.exe", "3", "ÅÄÖ.dll", "a,b", "1-2"});
    struct Case {
        std::vector<std::string> patterns;
        Rows rows;
    };
    const std::vector<Case> cases = {
        {{"3"}, {2}},
        {{"2-4"}, {1, 2, 3}},
        {{"6,1-2,2"}, {0, 1, 5}},
        {{"name:3"}, {2}},
        {{"name:1-2"}, {5}},
        {{"?"}, {2}},
        {{"a,b"}, {4}},
        {{"PROG.EXE"}, {1}},
        {{"*.*"}, {1, 3}},
        {{"*"}, {0, 1, 2, 3, 4, 5}},
        {{"åä?.DLL"}, {3}},
        {{"<dir>"}, {0}},
        {{"p*", "*e", "2"}, {1}},
    };
    for (const Case& one : cases)
        EXPECT_EQ(SelectRows(files, one.patterns), one.rows) << one.patterns[0];
}

TEST(RowPattern, RefusesWhatSelectsNothing)
{
    const FileList files = ListOf({"a", "b"});
    for (const char* pattern : {"3", "1-3", "c", "Ω", "", "name:", "99999999999999999999", "1,"})
        EXPECT_THROW(SelectRows(files, std::vector<std::string>{pattern}), CallFailure) << pattern;
    for (const char* pattern : {"0", "2-1", "1,0"})
        EXPECT_THROW(SelectRows(files, std::vector<std::string>{pattern}), UsageError) << pattern;
}

TEST(RowPattern, FitsWildcardsAsTheShellDoes)
{
    EXPECT_TRUE(FitsWildcards("", "*"));
    EXPECT_TRUE(FitsWildcards("abcabd", "*abd"));
    EXPECT_TRUE(FitsWildcards("abc", "a**c"));
    EXPECT_TRUE(FitsWildcards("abc", "???"));
    EXPECT_FALSE(FitsWildcards("abc", "??"));
    EXPECT_FALSE(FitsWildcards("", "?"));
    EXPECT_FALSE(FitsWildcards("abc", "*b"));
    // One that goes back only to the last star comes to an end.
    EXPECT_FALSE(FitsWildcards(std::string(5000, 'a'), "*a*a*a*a*a*a*a*b"));
}

} // namespace
} // namespace quillon::cli
