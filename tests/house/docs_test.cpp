// docs/ names only what there is: files, tests, and identifiers of the sources.
#include <cctype>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kRoot = fs::path(QUILLON_TEST_DATA).parent_path();

std::string Contents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void AddWords(const std::string& text, std::set<std::string>& words)
{
    std::string word;
    for (const char c : text + " ")
        if (std::isalnum(static_cast<unsigned char>(c)) || c == '_')
            word += c;
        else if (!word.empty())
            words.insert(std::exchange(word, {}));
}

/// Every word of the sources, the tests, the build and the shipped texts.
const std::set<std::string>& WordsOfTheSources()
{
    static const std::set<std::string> words = [] {
        static const std::set<std::string> kinds = {
            ".h", ".cpp", ".txt", ".cmake", ".json", ".sh", ".def", ".rc", ".LNG", ".py", ".qnp"};
        std::set<std::string> found;
        for (const char* folder :
             {"src", "tests", "fuzz", "bench", "cmake", "examples", "scripts", "resources"})
            for (const auto& entry : fs::recursive_directory_iterator(kRoot / folder)) {
                if (!entry.is_regular_file() || kinds.count(entry.path().extension().string()) == 0)
                    continue;
                const std::string text = Contents(entry.path());
                AddWords(text, found);
            }
        return found;
    }();
    return words;
}

/// What is in backticks on a page, outside its blocks of code.
std::vector<std::string> QuotedWords(const fs::path& page)
{
    static const std::regex block("```[^]*?```");
    static const std::regex quoted("`([^`\n]+)`");
    const std::string text = std::regex_replace(Contents(page), block, "");
    std::vector<std::string> words;
    for (std::sregex_iterator match(text.begin(), text.end(), quoted), end; match != end; ++match)
        words.push_back((*match)[1]);
    return words;
}

/// An identifier as this house writes them: with a capital inside, or several words, and no blank.
bool IsIdentifier(const std::string& word)
{
    static const std::regex identifier("k?[A-Z][a-z0-9]+([A-Z][A-Za-z0-9]*)+");
    return std::regex_match(word, identifier);
}

/// A path of the repository; those below src/ may leave that out.
bool IsSourcePath(const std::string& word)
{
    static const std::regex path("[A-Za-z0-9_./-]+\\.(h|cpp|cmake|py|sh)");
    return word.find('/') != std::string::npos && std::regex_match(word, path);
}

bool Exists(const std::string& path)
{
    for (const char* folder : {"", "src", "tests", "build"})
        if (fs::exists(kRoot / folder / path))
            return true;
    return false;
}

TEST(Docs, NameOnlyWhatThereIs)
{
    int identifiers = 0;
    int paths = 0;
    for (const auto& entry : fs::directory_iterator(kRoot / "docs")) {
        if (entry.path().extension() != ".md")
            continue;
        for (const std::string& word : QuotedWords(entry.path())) {
            if (IsSourcePath(word)) {
                ++paths;
                EXPECT_TRUE(Exists(word)) << entry.path().filename() << " names the file " << word;
            } else if (IsIdentifier(word)) {
                ++identifiers;
                EXPECT_EQ(WordsOfTheSources().count(word), 1U)
                    << entry.path().filename() << " names " << word << ", which no source has";
            }
        }
    }
    EXPECT_GT(identifiers, 100);
    EXPECT_GT(paths, 20);
}

TEST(Docs, AreSearchedForWhatThereIsNot)
{
    EXPECT_TRUE(IsIdentifier("ReadProjectFile"));
    EXPECT_TRUE(IsIdentifier("kMaxInFlight"));
    EXPECT_FALSE(IsIdentifier("PROJECT"));
    EXPECT_TRUE(IsSourcePath("formats/row_safety.h"));
    EXPECT_FALSE(Exists("formats/no_such_file.h"));
    EXPECT_EQ(WordsOfTheSources().count(std::string("No") + "SuchIdentifier"), 0U);
}

} // namespace
