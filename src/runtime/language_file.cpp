#include "runtime/language_file.h"

#include "helpers/ansi_text.h"
#include "helpers/utf16.h"
#include "helpers/utf8.h"

#include <algorithm>
#include <map>

namespace quillon {

namespace {

// clang-format off
constexpr MessageKey kMessages[] = {
    {"PreLoader", "Msg_Extract",           "Förbereder installationen. Vänta..."},
    {"PreLoader", "Msg_NoRuntime",         "Installationen kan inte startas. Filen '%1' saknas eller kan inte läsas."},
    {"Setup",     "Title",                 "Installation av %1"},
    {"Setup",     "Msg_Checking",          "Kontrollerar installationsfilerna..."},
    {"Setup",     "Msg_Copying",           "Kopierar filer..."},
    {"Setup",     "Msg_Settings",          "Gör inställningar..."},
    {"Setup",     "Msg_Undoing",           "Återställer datorn..."},
    {"Setup",     "Button_Cancel",         "Avbryt"},
    {"Setup",     "Ask_Cancel",            "Vill du avbryta installationen?"},
    {"Setup",     "Ask_InsertDisk",        "Stoppa in diskett nr %1!"},
    {"Setup",     "Ask_FileExists",        "Filen '%1' finns redan. Vill du ersätta den?"},
    {"Setup",     "Err_BadSwitch",         "Växeln '%1' är okänd eller felaktig. Tillåtna växlar är /S, /D=mapp, /DIR=\"mapp\", /LOG=\"fil\" och /PASSWORD=lösenord."},
    {"Setup",     "Err_NeedsPassword",     "Installationen kräver ett lösenord. Ange det med växeln /PASSWORD=."},
    {"Setup",     "Err_WrongPassword",     "Lösenordet är felaktigt."},
    {"Setup",     "Err_WrongSystem",       "Programmet kan inte installeras på den här versionen av Windows."},
    {"Setup",     "Ask_WrongSystem",       "Programmet är inte avsett för den här versionen av Windows. Vill du fortsätta ändå?"},
    {"Setup",     "Err_Damaged",           "Installationsfilerna är skadade eller ofullständiga (%1). Ingenting har installerats. Hämta installationen på nytt."},
    {"Setup",     "Err_DiskFull",          "Det finns inte tillräckligt med ledigt utrymme (%1). Frigör utrymme och försök igen."},
    {"Setup",     "Err_Failed",            "Installationen misslyckades och alla ändringar har återställts (%1)."},
    {"Setup",     "Err_NotUndone",         "Installationen avbröts, men alla ändringar kunde inte återställas. %1"},
    {"Setup",     "Msg_RestartNeeded",     "Datorn måste startas om innan programmet kan användas."},
    {"Setup",     "Icon_Uninstall",        "Avinstallera %1"},
    {"Pages",     "Page_Welcome",          "Välkommen"},
    {"Pages",     "Page_GeneralInfo",      "Generell information"},
    {"Pages",     "Page_GeneralInfo2",     "Generell information 2"},
    {"Pages",     "Page_LicenseInfo",      "Licensinformation"},
    {"Pages",     "Page_LicenseInfoRtf",   "Licensinformation (RTF)"},
    {"Pages",     "Page_Password",         "Lösenord"},
    {"Pages",     "Page_NameCompany",      "Registrering (lokalt)"},
    {"Pages",     "Page_Destination",      "Destinationskatalog"},
    {"Pages",     "Page_DestinationDrive", "Enhet"},
    {"Pages",     "Page_ProgramGroup",     "Välj programgrupp"},
    {"Pages",     "Page_StartInstall",     "Starta installation"},
    {"Pages",     "Page_InstallCompleted", "Installationen avslutad"},
    {"Test",      "Title",                 "Test av %1"},
    {"Test",      "Title_Preview",         "Förhandsgranskning av %1"},
    {"Test",      "Msg_Unnamed",           "ett projekt utan namn"},
    {"Test",      "Msg_Nothing",           "Det här är ett test. Ingenting installeras."},
    {"Test",      "Msg_Pages",             "Dialogrutor som installationen visar:"},
    {"Test",      "Msg_NoPages",           "Installationen visar inga dialogrutor."},
    {"Test",      "Msg_Screen",            "Installationsskärmen:"},
    {"Test",      "Msg_ScreenTitle",       "Titel: %1"},
    {"Test",      "Msg_ScreenSubTitle",    "Undertitel: %1"},
    {"Test",      "Msg_ScreenSize",        "Storlek: %1 bildpunkter"},
    {"Test",      "Msg_ScreenPicture",     "Bakgrundsbild: %1"},
    {"Test",      "Button_Close",          "Stäng"},
    {"Test",      "Err_TestFiles",         "Testet kan inte visas (%1). Starta det på nytt."},
    {"Uninstall", "Title",                 "Avinstallation av %1"},
    {"Uninstall", "Ask_Uninstall",         "Vill du ta bort %1 från datorn?"},
    {"Uninstall", "Msg_Running",           "Tar bort filer och inställningar..."},
    {"Uninstall", "Msg_Done",              "%1 har tagits bort från datorn."},
    {"Uninstall", "Msg_Partly",            "%1 har tagits bort, men några filer eller inställningar kunde inte tas bort."},
    {"Uninstall", "Err_NoLog",             "Avinstallationen kan inte startas. Filen '%1' saknas eller är skadad."},
};
// clang-format on
static_assert(std::size(kMessages) == std::size_t(Message::Count));

// What is longer can't be shown and comes from a damaged file.
constexpr std::size_t kLongestText = 2000;

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kTurnedUtf16Mark = "\xFE\xFF";

Text FromTurnedUtf16(std::string_view bytes)
{
    std::string turned(bytes.substr(0, bytes.size() / 2 * 2));
    for (std::size_t i = 0; i < turned.size(); i += 2)
        std::swap(turned[i], turned[i + 1]);
    return FromUtf16(turned);
}

// Texts of Windows-1252 with a letter beyond ASCII are hardly ever well-formed UTF-8.
Text Decoded(std::string_view bytes)
{
    if (bytes.starts_with(kUtf16Mark))
        return FromUtf16(bytes.substr(kUtf16Mark.size()));
    if (bytes.starts_with(kTurnedUtf16Mark))
        return FromTurnedUtf16(bytes.substr(kTurnedUtf16Mark.size()));
    if (bytes.starts_with(kUtf8Mark))
        bytes.remove_prefix(kUtf8Mark.size());
    return IsUtf8(bytes) ? Text(bytes) : AnsiText::FromBytes(bytes);
}

bool IsText(std::string_view value)
{
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7F; };
    return !value.empty() && value.size() <= kLongestText && IsUtf8(value) &&
           std::ranges::none_of(value, isControl);
}

Text Name(std::string_view section, std::string_view key)
{
    return LowerCase(TrimBlanks(section)) + "\n" + LowerCase(TrimBlanks(key));
}

/// Goes through the file once: it may be large, and there are many texts to find.
class LanguageReader {
public:
    using Texts = std::array<Text, std::size(kMessages)>;

    explicit LanguageReader(Texts& texts) : texts_(texts)
    {
        for (std::size_t i = 0; i < texts.size(); ++i)
            places_[Name(kMessages[i].section, kMessages[i].key)] = i;
    }

    void Read(std::string_view file)
    {
        while (!file.empty()) {
            const std::size_t end = std::min(file.find_first_of("\r\n"), file.size());
            TakeLine(file.substr(0, end));
            file.remove_prefix(std::min(end + 1, file.size()));
        }
    }

private:
    void TakeLine(std::string_view line)
    {
        // Longer than a key, its text and the blanks round them.
        if (line.size() > 2 * kLongestText)
            return;
        const Text trimmed = TrimBlanks(line);
        if (trimmed.starts_with('['))
            section_ = trimmed.substr(1, trimmed.find(']') - 1);
        const std::size_t equals = trimmed.find('=');
        if (trimmed.starts_with('[') || equals == Text::npos)
            return;
        const auto place = places_.find(Name(section_, trimmed.substr(0, equals)));
        if (place == places_.end())
            return;
        const Text value = TrimBlanks(std::string_view(trimmed).substr(equals + 1));
        if (IsText(value))
            texts_[place->second] = value;
        // Of two equal keys the first counts.
        places_.erase(place);
    }

    Texts& texts_;
    std::map<Text, std::size_t> places_;
    Text section_;
};

} // namespace

const MessageKey& KeyOf(Message message)
{
    return kMessages[std::size_t(message)];
}

LanguageTexts::LanguageTexts()
{
    std::ranges::transform(kMessages, texts_.begin(), &MessageKey::swedish);
}

LanguageTexts::LanguageTexts(std::string_view bytes) : LanguageTexts()
{
    LanguageReader(texts_).Read(Decoded(bytes));
}

Text LanguageTexts::operator()(Message message, std::string_view inserted) const
{
    return ReplaceAll((*this)[message], "%1", inserted);
}

} // namespace quillon
