// The language files that come with the tool: each one has all texts of the reference.
#include "helpers/ansi_text.h"
#include "runtime/texts/language_file.h"

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
        EXPECT_EQ(CountOf(text, "%2"), CountOf(original, "%2")) << entries[i].key;
        EXPECT_EQ(CountOf(text, "%"), CountOf(text, "%1") + CountOf(text, "%2")) << entries[i].key;
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
    EXPECT_LT(same, 20);
}

struct Wording {
    const char* language;
    Message message;
    const char* text;
};

// As the systems of these languages and the setups of others say it.
TEST(LanguageFolder, HasTheWordsThatItsReadersKnow)
{
    const Wording kWordings[] = {
        {"SWEDISH.LNG", Message::Undoing, "Ångrar ändringarna..."},
        {"SWEDISH.LNG", Message::InsertDisk, "Sätt in diskett %1."},
        {"SWEDISH.LNG", Message::PageDestination, "Destinationsmapp"},
        {"ENGLISH.LNG", Message::Undoing, "Undoing changes..."},
        {"ENGLISH.LNG", Message::Title, "%1 Setup"},
        {"ENGLISH.LNG", Message::UninstallTitle, "%1 Uninstall"},
        {"ENGLISH.LNG", Message::WrongPassword, "The password is incorrect."},
        {"ENGLISH.LNG", Message::InsertDisk, "Please insert disk %1."},
        {"GERMAN.LNG", Message::Undoing, "Änderungen werden rückgängig gemacht..."},
        {"DANISH.LNG", Message::Undoing, "Fortryder ændringer..."},
        {"DANISH.LNG", Message::Settings, "Anvender indstillinger..."},
        {"DANISH.LNG", Message::PageGeneralInfo, "Generelle oplysninger"},
        {"DANISH.LNG", Message::PageGeneralInfo2, "Generelle oplysninger 2"},
        {"NORWEGIAN.LNG", Message::Undoing, "Angrer endringer..."},
        {"NORWEGIAN.LNG", Message::Settings, "Bruker innstillinger..."},
        {"NORWEGIAN.LNG", Message::PageLicenseInfo, "Lisensavtale"},
        {"NORWEGIAN.LNG", Message::PageLicenseInfoRtf, "Lisensavtale (RTF)"},
        {"FINNISH.LNG", Message::Undoing, "Kumotaan muutoksia..."},
        {"FINNISH.LNG", Message::Settings, "Määritetään asetuksia..."},
        {"FINNISH.LNG", Message::InsertDisk, "Aseta levyke %1 asemaan."},
    };
    for (const Wording& one : kWordings)
        EXPECT_EQ(LanguageTexts(BytesOf(one.language))[one.message], one.text) << one.language;
}

TEST(LanguageFolder, AsksForTheInstallationFilesAgain)
{
    const std::pair<const char*, const char*> kEndings[] = {
        {"SWEDISH.LNG", " Hämta installationsfilerna på nytt."},
        {"ENGLISH.LNG", " Please obtain the setup files again."},
        {"GERMAN.LNG", " Bitte beziehen Sie die Installationsdateien erneut."},
        {"DANISH.LNG", " Hent installationsfilerne igen."},
        {"NORWEGIAN.LNG", " Hent installasjonsfilene på nytt."},
        {"FINNISH.LNG", " Hanki asennuspaketti uudelleen."},
    };
    for (const auto& [language, ending] : kEndings) {
        const LanguageTexts texts(BytesOf(language));
        EXPECT_TRUE(texts[Message::Damaged].ends_with(ending)) << texts[Message::Damaged];
    }
}

TEST(LanguageFolder, HasNoWordsThatItsReadersStumbleOver)
{
    const std::pair<const char*, std::vector<const char*>> kAvoided[] = {
        {"SWEDISH.LNG", {"katalog", "Återställer", "terställ", "Stoppa in"}},
        {"ENGLISH.LNG", {"Restoring", " wrong.", "Give it", "or wrong"}},
        {"GERMAN.LNG", {"wiederhergestellt", "besorgen"}},
        {"DANISH.LNG", {"Gendanner", "er blevet fortrudt", "Generel information"}},
        {"NORWEGIAN.LNG", {"Gjenoppretter", "ryter", "Lisensinformasjon", "Utfører"}},
        {"FINNISH.LNG", {"Palautetaan tietokonetta", "Tehdään"}},
    };
    for (const auto& [language, words] : kAvoided)
        for (const char* word : words)
            EXPECT_EQ(CountOf(AnsiText::FromBytes(BytesOf(language)), word), 0U)
                << language << ": " << word;
}

// The record of an installation holds them under their keys alone.
TEST(UninstallerTexts, HaveAKeyEach)
{
    std::set<Text> keys;
    for (int i = 0; i < int(Message::Count); ++i)
        if (IsOfUninstaller(Message(i)))
            EXPECT_TRUE(keys.insert(KeyOf(Message(i)).key).second) << KeyOf(Message(i)).key;
    EXPECT_TRUE(keys.contains("Button_Yes"));
    EXPECT_TRUE(keys.contains("Reason_KeyNotEmpty"));
    EXPECT_FALSE(keys.contains("Skip_ReadOnly"));
}

INSTANTIATE_TEST_SUITE_P(, LanguageResource,
                         testing::Values("SWEDISH.LNG", "ENGLISH.LNG", "NORWEGIAN.LNG",
                                         "DANISH.LNG", "FINNISH.LNG", "GERMAN.LNG"),
                         [](const auto& language) {
                             const Text name = language.param;
                             return name.substr(0, name.find('.'));
                         });

} // namespace quillon
