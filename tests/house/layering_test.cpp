// The house's order, read off the includes: a folder knows only the folders below it, Qt stays in
// the windows, and what belongs to one system stays behind the seam for it.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kSources = fs::path(QUILLON_TEST_DATA).parent_path() / "src";

// Each folder with the height it stands at; folders of one height do not know each other.
const std::map<std::string, int> kHeight = {
    {"helpers", 0},  {"platform", 1}, {"archive", 2},   {"ini", 2},      {"project", 3},
    {"rtf", 4},      {"formats", 4},  {"design", 5},    {"pictures", 6}, {"runtime", 7},
    {"filelist", 7}, {"actions", 8},  {"importers", 8}, {"tools", 8},    {"builder", 9},
    {"shell", 10},   {"cli", 11},     {"ui", 11},       {"app", 13}};
constexpr int kFormsHeight = 12;

struct Include {
    fs::path file; // below src/
    std::string target;
    bool isSystem;
};

std::vector<Include> ReadIncludes()
{
    static const std::regex line(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::vector<Include> includes;
    for (const auto& entry : fs::recursive_directory_iterator(kSources)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".h" && extension != ".cpp")
            continue;
        std::ifstream file(entry.path());
        std::smatch match;
        for (std::string text; std::getline(file, text);)
            if (std::regex_search(text, match, line))
                includes.push_back(
                    {fs::relative(entry.path(), kSources), match[2], match[1] == "<"});
    }
    return includes;
}

std::set<std::string> Parts(const fs::path& path)
{
    std::set<std::string> parts;
    for (const fs::path& part : path)
        parts.insert(part.string());
    return parts;
}

int HeightOf(const fs::path& path)
{
    if (Parts(path).count("forms") > 0)
        return kFormsHeight;
    const auto found = kHeight.find(path.begin()->string());
    return found == kHeight.end() ? -1 : found->second;
}

class House : public testing::Test {
protected:
    static void SetUpTestSuite() { includes_ = ReadIncludes(); }

    static std::vector<Include> includes_;
};

std::vector<Include> House::includes_;

TEST_F(House, HasSourcesToLookAt)
{
    EXPECT_GT(includes_.size(), 100U);
}

TEST_F(House, StandsInKnownFolders)
{
    for (const Include& include : includes_)
        EXPECT_GE(HeightOf(include.file), 0) << include.file << " lies in a folder of no height";
}

TEST_F(House, IncludesOnlyFoldersFurtherDown)
{
    for (const Include& include : includes_) {
        const std::string from = include.file.begin()->string();
        const std::string to = fs::path(include.target).begin()->string();
        if (include.isSystem || kHeight.count(to) == 0 || from == to)
            continue;
        EXPECT_GT(HeightOf(include.file), HeightOf(include.target))
            << include.file << " includes " << include.target;
    }
}

TEST_F(House, KeepsTheSetupRuntimeOnTheLowestFolders)
{
    const std::set<std::string> allowed = {"helpers", "platform", "archive", "ini",      "project",
                                           "rtf",     "formats",  "design",  "pictures", "runtime"};
    for (const Include& include : includes_)
        if (include.file.begin()->string() == "runtime" && !include.isSystem) {
            EXPECT_EQ(allowed.count(fs::path(include.target).begin()->string()), 1U)
                << include.file << " includes " << include.target;
            EXPECT_FALSE(include.target.starts_with("archive/writer/"))
                << include.file << " includes " << include.target;
        }
}

TEST_F(House, KeepsQtInTheWindows)
{
    static const std::regex qt("^Q[A-Z].*|^Qt.*/.*");
    for (const Include& include : includes_) {
        const std::set<std::string> parts = Parts(include.file);
        const bool isWindow =
            parts.count("forms") > 0 || parts.count("ui") > 0 || parts.count("app") > 0;
        if (include.isSystem && !isWindow)
            EXPECT_FALSE(std::regex_match(include.target, qt))
                << include.file << " includes <" << include.target << ">";
    }
}

TEST_F(House, KeepsSystemHeadersBehindTheirSeam)
{
    static const std::regex windows("^(windows|shlobj|shellapi|wincrypt|winver|objbase)\\.h$");
    static const std::regex posix("^(unistd|fcntl|dirent|spawn|langinfo|sys/.*)(\\.h)?$");
    for (const Include& include : includes_) {
        const std::set<std::string> parts = Parts(include.file);
        if (!include.isSystem)
            continue;
        EXPECT_FALSE(std::regex_match(include.target, windows) && parts.count("win32") == 0)
            << include.file << " includes <" << include.target << ">";
        EXPECT_FALSE(std::regex_match(include.target, posix) && parts.count("posix") == 0)
            << include.file << " includes <" << include.target << ">";
    }
}

TEST_F(House, PrintsWithoutStreams)
{
    // Streams look at the locale, and they alone would double the size of the setup runtime.
    static const std::set<std::string> streams = {"iostream", "fstream", "sstream", "iomanip",
                                                  "regex"};
    for (const Include& include : includes_)
        if (include.isSystem && HeightOf(include.file) < kHeight.at("cli"))
            EXPECT_EQ(streams.count(include.target), 0U)
                << include.file << " includes <" << include.target << ">";
}

} // namespace
