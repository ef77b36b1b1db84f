// docs/ names only files, tests and identifiers of the sources that exist.
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

/// Without the comments of C++, which may name what no longer exists.
std::string WithoutComments(const std::string& text)
{
    std::string code;
    char quote = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (quote != 0) {
            quote = text[i] == quote || text[i] == '\n' ? 0 : quote;
            if (text[i] == '\\' && i + 1 < text.size())
                code += text[i++];
        } else if (text.compare(i, 2, "//") == 0) {
            i = text.find('\n', i);
            if (i == std::string::npos)
                break;
        } else if (text[i] == '"') {
            quote = text[i];
        }
        code += text[i];
    }
    return code;
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
                const bool isCode =
                    entry.path().extension() == ".cpp" || entry.path().extension() == ".h";
                const std::string text = Contents(entry.path());
                AddWords(isCode ? WithoutComments(text) : text, found);
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

/// A path of the repository; those below src/ may leave that out. Below a folder of src/ a file may
/// stand without its ending, which then means header and source.
bool IsSourcePath(const std::string& word)
{
    static const std::regex path("[A-Za-z0-9_./-]+\\.(h|cpp|cmake|py|sh)");
    static const std::regex withoutEnding("(src/)?([a-z]+)/[a-z0-9_/]+");
    std::smatch parts;
    if (std::regex_match(word, parts, withoutEnding))
        return fs::is_directory(kRoot / "src" / parts[2].str());
    return word.find('/') != std::string::npos && std::regex_match(word, path);
}

bool Exists(const std::string& path)
{
    for (const char* folder : {"", "src", "tests", "build"})
        for (const char* ending : {"", ".h", ".cpp"})
            if (fs::exists(kRoot / folder / (path + ending)))
                return true;
    return false;
}

/// The change log is not checked: it also names what was removed.
std::vector<fs::path> Pages()
{
    std::vector<fs::path> pages = {kRoot / "README.md"};
    for (const auto& entry : fs::directory_iterator(kRoot / "docs"))
        if (entry.path().extension() == ".md")
            pages.push_back(entry.path());
    return pages;
}

TEST(Docs, NameOnlyWhatThereIs)
{
    int identifiers = 0;
    int paths = 0;
    for (const fs::path& page : Pages())
        for (const std::string& word : QuotedWords(page)) {
            if (IsSourcePath(word)) {
                ++paths;
                EXPECT_TRUE(Exists(word)) << page.filename() << " names the file " << word;
            } else if (IsIdentifier(word)) {
                ++identifiers;
                EXPECT_EQ(WordsOfTheSources().count(word), 1U)
                    << page.filename() << " names " << word << ", which no source has";
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
    EXPECT_TRUE(IsSourcePath("runtime/setup_program"));
    EXPECT_TRUE(Exists("runtime/setup_program"));
    EXPECT_TRUE(Exists("src/runtime/win32"));
    EXPECT_FALSE(IsSourcePath("text/plain"));
    EXPECT_FALSE(Exists("formats/no_such_file.h"));
    EXPECT_FALSE(Exists("runtime/no_such_file"));
    EXPECT_EQ(WithoutComments("int a; // NotHere\nauto b = \"// here\";"),
              "int a; \nauto b = \"// here\";");
    EXPECT_EQ(WordsOfTheSources().count(std::string("No") + "SuchIdentifier"), 0U);
}

} // namespace
