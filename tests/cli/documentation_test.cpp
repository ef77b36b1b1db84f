// docs/quillonc.md has a row for each call, with its operands and switches as the table of calls
// has them.
#include "cli/calls.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace quillon::cli {
namespace {

std::string Page()
{
    std::ifstream file(std::filesystem::path(QUILLON_TEST_DATA).parent_path() / "docs" /
                       "quillonc.md");
    std::ostringstream page;
    page << file.rdbuf();
    return page.str();
}

/// The call's row in the table of calls; a bar inside a cell follows a backslash there.
std::string RowOf(const std::string& page, const Call& call)
{
    const std::size_t table = page.find("## Every call and switch");
    const std::size_t begin = page.find("\n| `" + std::string(call.name) + "` |", table);
    if (table == std::string::npos || begin == std::string::npos)
        return "";
    return ReplaceAll(page.substr(begin, page.find('\n', begin + 1) - begin), "\\|", "|");
}

Text OperandsOf(const Call& call)
{
    Text operands;
    for (const char* operand : call.operands)
        operands += (operands.empty() ? "" : " ") + Text(operand);
    return operands;
}

Text EntryOf(const Option& option)
{
    const char* const value = option.words ? option.words : option.value;
    const Text entry = "`" + Text(option.name) + (value ? Text(" ") + value : "") + "`";
    return option.need == Need::Required ? "**" + entry + "**" : entry;
}

TEST(Documentation, HasEveryCallWithItsOperandsAndSwitches)
{
    const std::string page = Page();
    for (const Call& call : AllCalls()) {
        const std::string row = RowOf(page, call);
        ASSERT_NE(row, "") << "docs/quillonc.md has no row for " << call.name;
        EXPECT_NE(row.find("`" + OperandsOf(call) + "`"), std::string::npos) << row;
        std::size_t switches = 0;
        for (const Option& option : call.options) {
            EXPECT_NE(row.find(EntryOf(option)), std::string::npos)
                << call.name << " lacks " << EntryOf(option);
            ++switches;
        }
        std::size_t named = 0;
        for (std::size_t at = row.find("`--"); at != std::string::npos;
             at = row.find("`--", at + 1))
            ++named;
        EXPECT_EQ(named, switches) << "the row names a switch that the call has not: " << row;
    }
}

} // namespace
} // namespace quillon::cli
