// docs/variables-and-lists.md names every variable, and its examples are lines that the setup
// reads.
#include "formats/variable_names.h"
#include "runtime/ini_lines.h"
#include "runtime/registry_lines.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace quillon {
namespace {

std::string Page()
{
    std::ifstream file(std::filesystem::path(QUILLON_TEST_DATA).parent_path() / "docs" /
                       "variables-and-lists.md");
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The page from its heading to the next one.
std::string Chapter(const std::string& page, const std::string& heading)
{
    const std::size_t begin = page.find("## " + heading + "\n");
    if (begin == std::string::npos)
        return "";
    return page.substr(begin, page.find("\n## ", begin + 1) - begin);
}

TEST(VariablesAndLists, NamesEveryVariable)
{
    const std::string variables = Chapter(Page(), "Variables");
    for (const VariableName& variable : kVariableNames) {
        // Those with a number are named by the first and the last one.
        const auto stem = variable.name.substr(0, variable.name.find_first_of("0123456789"));
        const Text named = variable.number == 0 ? Text(stem) : Text(stem) + "1";
        EXPECT_NE(variables.find("`" + named + "`"), std::string::npos) << variable.name;
    }
}

TEST(VariablesAndLists, ShowsRegistryLinesThatCanBeRead)
{
    const std::vector<RegistryLine::Kind> kinds = {
        RegistryLine::Kind::Key,         RegistryLine::Kind::TextValue,
        RegistryLine::Kind::NumberValue, RegistryLine::Kind::BytesValue,
        RegistryLine::Kind::TextValue,   RegistryLine::Kind::Delete,
        RegistryLine::Kind::Uninstall};
    std::vector<RegistryLine::Kind> found;
    const std::string chapter = Chapter(Page(), "The registry list");
    constexpr std::string_view kRow = "\n| `";
    for (std::size_t row = chapter.find(kRow); row != std::string::npos;
         row = chapter.find(kRow, row + 1)) {
        const std::size_t begin = row + kRow.size();
        found.push_back(
            ReadRegistryLine(chapter.substr(begin, chapter.find('`', begin) - begin)).kind);
    }
    EXPECT_EQ(found, kinds);
}

TEST(VariablesAndLists, ShowsAnIniListThatCanBeRead)
{
    const IniList list = ReadIniLines(
        ReplaceAll(ReplaceAll(Chapter(Page(), "The INI list"), "\r\n", "\n"), "\n", "\r\n"));
    ASSERT_GE(list.lines.size(), 2U);
    EXPECT_EQ(list.lines[0].file, "%WINDIR\\produkt.ini");
    EXPECT_EQ(list.lines[1].section, "Avsnitt");
    EXPECT_EQ(list.lines[1].name, "Namn");
    EXPECT_EQ(list.lines[1].value, "värde");
}

} // namespace
} // namespace quillon
