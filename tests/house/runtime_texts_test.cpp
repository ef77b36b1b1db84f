// What an end user reads comes from the package's language file. A Swedish text anywhere else in
// the setup's sources would be shown to every user, whatever the language.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>

namespace {

namespace fs = std::filesystem;

const fs::path kRuntime = fs::path(QUILLON_TEST_DATA).parent_path() / "src" / "runtime";
constexpr const char* kTablesOfTexts[] = {"messages.cpp", "self_extract_messages.h",
                                          "starter_messages.h"};

TEST(RuntimeTexts, StandInTheTablesOfTextsAlone)
{
    static const std::regex foreignLiteral("\"[^\"]*[\x80-\xFF][^\"]*\"");
    int inTable = 0;
    for (const auto& entry : fs::recursive_directory_iterator(kRuntime)) {
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            if (!std::regex_search(line, foreignLiteral))
                continue;
            if (std::ranges::count(kTablesOfTexts, entry.path().filename()) != 0)
                ++inTable;
            else
                ADD_FAILURE() << fs::relative(entry.path(), kRuntime).string() << ": " << line;
        }
    }
    EXPECT_GT(inTable, 50);
}

} // namespace
