// The language files that are laid beside the tool: each one says everything that the reference
// says.
#include "helpers/ansi_text.h"
#include "runtime/language_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace quillon {

namespace {

namespace fs = std::filesystem;

constexpr const char* kReference = "SWEDISH.LNG";
const fs::path kFolder = fs::path(QUILLON_TEST_DATA) / ".." / "resources" / "Language";

struct Entry {
    Text section;
    Text key;
    Text text;
};

std::string BytesOf(const Text& name)
{
    std::ifstream file(kFolder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Every line that holds a text, in order.
std::vector<Entry> EntriesOf(const Text& name)
{
    std::vector<Entry> entries;
    Text section;
    for (const Text& line : SplitLines(AnsiText::FromBytes(BytesOf(name)))) {
        if (line.starts_with("["))
            section = line.substr(1, line.size() - 2);
        else if (!line.empty() && !line.starts_with(";"))
            entries.push_back(
                {section, line.substr(0, line.find('=')), line.substr(line.find('=') + 1)});
    }
    return entries;
}

Text KeysOf(const std::vector<Entry>& entries)
{
    Text keys;
    for (const Entry& entry : entries)
        keys += entry.section + "." + entry.key + "\n";
    return keys;
}

std::size_t CountOf(std::string_view text, std::string_view part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != Text::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

/// The words that begin with a slash, such as switches of the command line.
std::multiset<Text> SwitchesIn(const Text& text)
{
    std::multiset<Text> found;
    for (const char* name : {"/S,", "/D=", "/DIR=\"", "/LOG=\"", "/PASSWORD="})
        for (std::size_t i = CountOf(text, name); i > 0; --i)
            found.insert(name);
    return found;
}

} // namespace

TEST(LanguageFolder, HoldsTheSixLanguages)
{
    std::vector<Text> names;
    for (const auto& entry : fs::directory_iterator(kFolder))
        names.push_back(entry.path().filename().string());
    EXPECT_THAT(names, testing::UnorderedElementsAre("DANISH.LNG", "ENGLISH.LNG", "FINNISH.LNG",
                                                     "GERMAN.LNG", "NORWEGIAN.LNG", "SWEDISH.LNG"));
}

TEST(SwedishLng, HoldsTheTextsOfTheSetupItself)
{
    const std::vector<Entry> entries = EntriesOf(kReference);
    ASSERT_EQ(entries.size(), std::size_t(Message::Count));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const MessageKey& key = KeyOf(Message(i));
        EXPECT_EQ(entries[i].section, key.section);
        EXPECT_EQ(entries[i].key, key.key);
        EXPECT_EQ(entries[i].text, key.swedish);
    }
}

class LanguageResource : public testing::TestWithParam<const char*> {};

TEST_P(LanguageResource, IsWindows1252WithCrLf)
{
    const std::string bytes = BytesOf(GetParam());
    ASSERT_TRUE(bytes.ends_with("\r\n"));
    EXPECT_EQ(CountOf(bytes, "\n"), CountOf(bytes, "\r\n"));
    EXPECT_EQ(CountOf(bytes, "\r"), CountOf(bytes, "\r\n"));
    EXPECT_EQ(AnsiText::ToBytes(AnsiText::FromBytes(bytes)), bytes);
    EXPECT_EQ(CountOf(bytes, "\xC3"), 0U) << "what UTF-8 of these languages would hold";
    EXPECT_EQ(CountOf(bytes, "\t"), 0U);
}

TEST_P(LanguageResource, HasTheSectionsAndKeysOfTheReference)
{
    EXPECT_EQ(KeysOf(EntriesOf(GetParam())), KeysOf(EntriesOf(kReference)));
}

TEST_P(LanguageResource, HasThePlacesAndSwitchesOfTheReference)
{
    const std::vector<Entry> entries = EntriesOf(GetParam());
    const std::vector<Entry> reference = EntriesOf(kReference);
    ASSERT_EQ(entries.size(), reference.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const Text& text = entries[i].text;
        const Text& original = reference[i].text;
        EXPECT_EQ(CountOf(text, "%1"), CountOf(original, "%1")) << entries[i].key;
        EXPECT_EQ(CountOf(text, "%"), CountOf(text, "%1")) << entries[i].key;
        EXPECT_EQ(CountOf(text, "'"), CountOf(original, "'") + CountOf(text, "n't"))
            << entries[i].key;
        EXPECT_EQ(SwitchesIn(text), SwitchesIn(original)) << entries[i].key;
        EXPECT_EQ(text.ends_with("..."), original.ends_with("...")) << entries[i].key;
        EXPECT_FALSE(text.empty()) << entries[i].key;
        EXPECT_EQ(TrimBlanks(text), text) << entries[i].key;
    }
}

TEST_P(LanguageResource, IsWhatTheSetupReads)
{
    const LanguageTexts texts(BytesOf(GetParam()));
    const std::vector<Entry> entries = EntriesOf(GetParam());
    ASSERT_EQ(entries.size(), std::size_t(Message::Count));
    for (std::size_t i = 0; i < entries.size(); ++i)
        EXPECT_EQ(texts[Message(i)], entries[i].text) << entries[i].key;
}

TEST_P(LanguageResource, IsTranslated)
{
    if (Text(GetParam()) == kReference)
        return;
    const std::vector<Entry> entries = EntriesOf(GetParam());
    const std::vector<Entry> reference = EntriesOf(kReference);
    ASSERT_EQ(entries.size(), reference.size());
    // The languages are kin, and some words are the same in them.
    int same = 0;
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (entries[i].text == reference[i].text && CountOf(entries[i].text, " ") > 2)
            ADD_FAILURE() << entries[i].key << " is Swedish";
        else if (entries[i].text == reference[i].text)
            ++same;
    EXPECT_LT(same, 12);
}

INSTANTIATE_TEST_SUITE_P(, LanguageResource,
                         testing::Values("SWEDISH.LNG", "ENGLISH.LNG", "NORWEGIAN.LNG",
                                         "DANISH.LNG", "FINNISH.LNG", "GERMAN.LNG"),
                         [](const auto& language) {
                             const Text name = language.param;
                             return name.substr(0, name.find('.'));
                         });

} // namespace quillon
