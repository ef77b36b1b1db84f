// docs/variables-and-lists.md names every variable, and its examples are lines that the setup
// reads; so are those of docs/setup-scripts.md.
#include "formats/variable_names.h"
#include "runtime/ini_files/ini_lines.h"
#include "runtime/registry/registry_lines.h"
#include "runtime/script/script_lines.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>

namespace quillon {
namespace {

std::string Page(const std::string& name = "variables-and-lists.md")
{
    std::ifstream file(std::filesystem::path(QUILLON_TEST_DATA).parent_path() / "docs" / name);
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

TEST(SetupScripts, ShowAScriptThatCanBeRead)
{
    Text script;
    std::istringstream page(Page("setup-scripts.md"));
    for (std::string line; std::getline(page, line);)
        if (line.starts_with("    "))
            script += line + "\r\n";
    const Script read = ReadScript(script);
    EXPECT_EQ(read.fault, std::nullopt);
    EXPECT_EQ(read.commands.size(), 9U);
}

TEST(SetupScripts, ShowTheFormOfEveryCommandAndCondition)
{
    const std::string page = Page("setup-scripts.md");
    int shown = 0;
    for (const char* row :
         {"`MESSAGE \"text\"`", "`LOG \"text\"`", "`COPY \"file\" \"to\"`", "`DELETE \"file\"`",
          "`RENAME \"file\" \"to\"`", "`MAKEFOLDER \"folder\"`", "`REMOVEFOLDER \"folder\"`",
          "`INI \"file\" \"section\" \"name\" \"value\"`",
          "`REGISTRY HKEY_CURRENT_USER\\Software\\Firma :: Antal=7`",
          "`REGISTRY DELETE=HKEY_CURRENT_USER\\Software\\Firma`",
          "`RUN \"program\" \"parameters\"`", "`RUNHIDDEN \"program\" \"parameters\"`",
          "`SET %NAME \"value\"`", "`EXIT`"}) {
        const std::string line = row;
        EXPECT_NE(page.find(line), std::string::npos) << row;
        EXPECT_EQ(ReadScript(line.substr(1, line.size() - 2)).fault, std::nullopt) << row;
        ++shown;
    }
    for (const char* condition :
         {"FILE \"file\"", "FOLDER \"folder\"", "REGISTRY \"HKEY_CURRENT_USER\\Software\\Firma\"",
          "REGISTRY \"HKEY_CURRENT_USER\\Software\\Firma :: Namn\"", "YES \"question\"",
          "\"%A\" = \"text\"", "\"%A\" <> \"text\""}) {
        EXPECT_NE(page.find("`" + std::string(condition) + "`"), std::string::npos) << condition;
        EXPECT_EQ(ReadScript("IF " + Text(condition) + "\r\nEND").fault, std::nullopt) << condition;
        ++shown;
    }
    EXPECT_EQ(shown, 21);
}

} // namespace
} // namespace quillon
