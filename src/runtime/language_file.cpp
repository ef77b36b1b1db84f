#include "runtime/language_file.h"

#include "helpers/ansi_text.h"
#include "runtime/ini_text.h"

namespace quillon {

namespace {

// clang-format off
constexpr MessageKey kMessages[] = {
    {"PreLoader", "Msg_Extract",             "Förbereder installationen. Vänta..."},
    {"PreLoader", "Msg_NoRuntime",           "Installationen kan inte startas. Filen '%1' saknas eller kan inte läsas."},
    {"Setup",     "Title",                   "Installation av %1"},
    {"Setup",     "Msg_Checking",            "Kontrollerar installationsfilerna..."},
    {"Setup",     "Msg_Copying",             "Kopierar filer..."},
    {"Setup",     "Msg_Settings",            "Gör inställningar..."},
    {"Setup",     "Msg_Undoing",             "Återställer datorn..."},
    {"Setup",     "Button_Cancel",           "Avbryt"},
    {"Setup",     "Ask_Cancel",              "Vill du avbryta installationen?"},
    {"Setup",     "Ask_InsertDisk",          "Stoppa in diskett nr %1!"},
    {"Setup",     "Ask_FileExists",          "Filen '%1' finns redan. Vill du ersätta den?"},
    {"Setup",     "Err_BadSwitch",           "Växeln '%1' är okänd eller felaktig. Tillåtna växlar är /S, /D=mapp, /DIR=\"mapp\", /LOG=\"fil\" och /PASSWORD=lösenord."},
    {"Setup",     "Err_NeedsPassword",       "Installationen kräver ett lösenord. Ange det med växeln /PASSWORD=."},
    {"Setup",     "Err_WrongPassword",       "Lösenordet är felaktigt."},
    {"Setup",     "Err_WrongSystem",         "Programmet kan inte installeras på den här versionen av Windows."},
    {"Setup",     "Ask_WrongSystem",         "Programmet är inte avsett för den här versionen av Windows. Vill du fortsätta ändå?"},
    {"Setup",     "Err_Damaged",             "Installationsfilerna är skadade eller ofullständiga (%1). Ingenting har installerats. Hämta installationen på nytt."},
    {"Setup",     "Err_DiskFull",            "Det finns inte tillräckligt med ledigt utrymme (%1). Frigör utrymme och försök igen."},
    {"Setup",     "Err_Failed",              "Installationen misslyckades och alla ändringar har återställts (%1)."},
    {"Setup",     "Err_NotUndone",           "Installationen avbröts, men alla ändringar kunde inte återställas. %1"},
    {"Setup",     "Msg_RestartNeeded",       "Datorn måste startas om innan programmet kan användas."},
    {"Setup",     "Icon_Uninstall",          "Avinstallera %1"},
    {"Uninstall", "Title",                   "Avinstallation av %1"},
    {"Uninstall", "Ask_Uninstall",           "Vill du ta bort %1 från datorn?"},
    {"Uninstall", "Msg_Running",             "Tar bort filer och inställningar..."},
    {"Uninstall", "Msg_Done",                "%1 har tagits bort från datorn."},
    {"Uninstall", "Msg_Partly",              "%1 har tagits bort, men några filer eller inställningar kunde inte tas bort."},
    {"Uninstall", "Err_NoLog",               "Avinstallationen kan inte startas. Filen '%1' saknas eller är skadad."},
};
// clang-format on
static_assert(std::size(kMessages) == std::size_t(Message::Count));

} // namespace

const MessageKey& KeyOf(Message message)
{
    return kMessages[std::size_t(message)];
}

LanguageTexts::LanguageTexts() : LanguageTexts(std::string()) {}

LanguageTexts::LanguageTexts(std::string bytes)
{
    const IniText file(std::move(bytes));
    for (std::size_t i = 0; i < texts_.size(); ++i) {
        const auto value = file.Value(kMessages[i].section, kMessages[i].key);
        texts_[i] = value && !value->empty() ? AnsiText::FromBytes(*value) : kMessages[i].swedish;
    }
}

Text LanguageTexts::operator()(Message message, std::string_view inserted) const
{
    return ReplaceAll((*this)[message], "%1", inserted);
}

} // namespace quillon
