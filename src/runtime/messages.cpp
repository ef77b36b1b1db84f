#include "runtime/messages.h"

#include <iterator>
#include <string_view>

namespace quillon {

namespace {

// clang-format off
constexpr MessageKey kMessages[] = {
    {Message::Extract,                "PreLoader", "Msg_Extract",             "Förbereder installationen. Vänta..."},
    {Message::NoRuntime,              "PreLoader", "Msg_NoRuntime",           "Installationen kan inte startas. Filen '%1' saknas eller är skadad."},
    {Message::Title,                  "Setup",     "Title",                   "Installation av %1"},
    {Message::Checking,               "Setup",     "Msg_Checking",            "Kontrollerar installationsfilerna..."},
    {Message::Copying,                "Setup",     "Msg_Copying",             "Kopierar filer..."},
    {Message::Settings,               "Setup",     "Msg_Settings",            "Gör inställningar..."},
    {Message::Undoing,                "Setup",     "Msg_Undoing",             "Ångrar ändringarna..."},
    {Message::Ok,                     "Setup",     "Button_OK",               "OK"},
    {Message::Cancel,                 "Setup",     "Button_Cancel",           "Avbryt"},
    {Message::Yes,                    "Setup",     "Button_Yes",              "Ja"},
    {Message::No,                     "Setup",     "Button_No",               "Nej"},
    {Message::Back,                   "Setup",     "Button_Back",             "< &Bakåt"},
    {Message::Next,                   "Setup",     "Button_Next",             "&Nästa >"},
    {Message::Accept,                  "Setup",     "Button_Accept",          "&Ja"},
    {Message::Decline,                 "Setup",     "Button_Decline",         "N&ej"},
    {Message::Finish,                  "Setup",     "Button_Finish",          "&Slutför"},
    {Message::Browse,                  "Setup",     "Button_Browse",          "B&läddra..."},
    {Message::DiskSpaceButton,         "Setup",     "Button_DiskSpace",       "&Diskutrymme..."},
    {Message::CancelQuestion,         "Setup",     "Ask_Cancel",              "Vill du avbryta installationen?"},
    {Message::InsertDisk,             "Setup",     "Ask_InsertDisk",          "Sätt in diskett %1."},
    {Message::FileExists,             "Setup",     "Ask_FileExists",          "Filen '%1' finns redan. Vill du ersätta den?"},
    {Message::BadSwitch,              "Setup",     "Err_BadSwitch",           "Växeln '%1' är okänd eller felaktig. Tillåtna växlar är /S, /passive, /D=mapp, /DIR=\"mapp\", /COMPONENTS=\"a,!b\", /GROUP=\"...\", /LANG=..., /LOG=\"fil\" och /PASSWORD=lösenord."},
    {Message::NeedsPassword,          "Setup",     "Err_NeedsPassword",       "Installationen kräver ett lösenord. Ange det med växeln /PASSWORD=."},
    {Message::WrongPassword,          "Setup",     "Err_WrongPassword",       "Lösenordet är felaktigt."},
    {Message::WrongSystem,            "Setup",     "Err_WrongSystem",         "Programmet kan inte installeras på den här versionen av Windows."},
    {Message::WrongSystemQuestion,    "Setup",     "Ask_WrongSystem",         "Programmet är inte avsett för den här versionen av Windows. Vill du fortsätta ändå?"},
    {Message::OtherSetup,              "Setup",     "Err_OtherSetup",         "En annan installation pågår. Vänta tills den är klar och försök igen."},
    {Message::Damaged,                "Setup",     "Err_Damaged",             "Installationsfilerna är skadade eller ofullständiga (%1). Ingenting har installerats. Hämta installationsfilerna på nytt."},
    {Message::DiskFull,               "Setup",     "Err_DiskFull",            "Det finns inte tillräckligt med ledigt utrymme (%1). Frigör utrymme och försök igen."},
    {Message::Failed,                 "Setup",     "Err_Failed",              "Installationen misslyckades och alla ändringar har ångrats (%1)."},
    {Message::NotUndone,              "Setup",     "Err_NotUndone",           "Installationen avbröts, men alla ändringar kunde inte ångras (%1)."},
    {Message::EarlierNotUndone,       "Setup",     "Err_EarlierNotUndone",    "En tidigare installation till %1 avbröts, och alla dess ändringar kunde inte ångras. Starta om datorn och försök igen."},
    {Message::RestartNeeded,          "Setup",     "Msg_RestartNeeded",       "Datorn måste startas om innan programmet kan användas."},
    {Message::UninstallIcon,          "Setup",     "Icon_Uninstall",          "Avinstallera %1"},
    {Message::PageWelcome,            "Pages",     "Page_Welcome",            "Välkommen"},
    {Message::PageGeneralInfo,        "Pages",     "Page_GeneralInfo",        "Generell information"},
    {Message::PageGeneralInfo2,       "Pages",     "Page_GeneralInfo2",       "Generell information 2"},
    {Message::PageLicenseInfo,        "Pages",     "Page_LicenseInfo",        "Licensinformation"},
    {Message::PageLicenseInfoRtf,     "Pages",     "Page_LicenseInfoRtf",     "Licensinformation (RTF)"},
    {Message::PagePassword,           "Pages",     "Page_Password",           "Lösenord"},
    {Message::PageNameCompany,        "Pages",     "Page_NameCompany",        "Registrering"},
    {Message::PageDestination,        "Pages",     "Page_Destination",        "Destinationsmapp"},
    {Message::PageDestinationDrive,   "Pages",     "Page_DestinationDrive",   "Enhet"},
    {Message::PageComponents,          "Pages",     "Page_Components",        "Komponenter"},
    {Message::PageProgramGroup,       "Pages",     "Page_ProgramGroup",       "Välj programgrupp"},
    {Message::PageStartInstall,       "Pages",     "Page_StartInstall",       "Starta installation"},
    {Message::PageInstallCompleted,   "Pages",     "Page_InstallCompleted",   "Installationen avslutad"},
    {Message::TextNameCompany,         "Pages",     "Text_NameCompany",       "Skriv in ditt namn och företag."},
    {Message::TextNameCompanyAddress,  "Pages",     "Text_NameCompanyAddress","Skriv in ditt namn, företag och adressuppgifter."},
    {Message::TextDestination,         "Pages",     "Text_Destination",       "Programmet installeras i mappen nedan. Välj en annan mapp om du vill ha det någon annanstans."},
    {Message::TextDrive,               "Pages",     "Text_Drive",             "Välj den enhet som programmet ska installeras på."},
    {Message::TextComponents,          "Pages",     "Text_Components",        "Välj vilka delar av programmet som ska installeras."},
    {Message::TextProgramGroup,        "Pages",     "Text_ProgramGroup",      "Programmets genvägar läggs i programgruppen nedan. Skriv ett annat namn eller välj en grupp som finns."},
    {Message::LabelPassword,           "Pages",     "Label_Password",         "&Lösenord:"},
    {Message::LabelUserName,           "Pages",     "Label_UserName",         "Na&mn:"},
    {Message::LabelUserCompany,        "Pages",     "Label_UserCompany",      "&Företag:"},
    {Message::LabelUserAddress,        "Pages",     "Label_UserAddress",      "&Adress:"},
    {Message::LabelUserPhone,          "Pages",     "Label_UserPhone",        "&Telefon:"},
    {Message::LabelUserFax,            "Pages",     "Label_UserFax",          "Fa&x:"},
    {Message::LabelUserEmail,          "Pages",     "Label_UserEmail",        "&E-post:"},
    {Message::LabelFolder,             "Pages",     "Label_Folder",           "&Mapp:"},
    {Message::LabelDrive,              "Pages",     "Label_Drive",            "&Enhet:"},
    {Message::LabelComponents,         "Pages",     "Label_Components",       "&Komponenter:"},
    {Message::LabelGroup,              "Pages",     "Label_Group",            "&Programgrupp:"},
    {Message::LabelGroups,             "Pages",     "Label_Groups",           "Grupper som &finns:"},
    {Message::LabelNeededSpace,        "Pages",     "Label_NeededSpace",      "Nödvändigt diskutrymme:"},
    {Message::LabelFreeSpace,          "Pages",     "Label_FreeSpace",        "Ledigt diskutrymme:"},
    {Message::TitleDiskSpace,          "Pages",     "Title_DiskSpace",        "Diskutrymme"},
    {Message::SpaceUnknown,            "Pages",     "Space_Unknown",          "okänt"},
    {Message::SummaryFolder,           "Pages",     "Summary_Folder",         "Mapp: %1"},
    {Message::SummaryGroup,            "Pages",     "Summary_Group",          "Programgrupp: %1"},
    {Message::SummaryComponents,       "Pages",     "Summary_Components",     "Komponenter: %1"},
    {Message::ShowDocument,            "Pages",     "Show_Document",          "&Visa dokumentet"},
    {Message::ChooseFolder,            "Pages",     "Ask_Folder",             "Välj mapp för installationen."},
    {Message::FolderExistsQuestion,    "Pages",     "Ask_FolderExists",       "Mappen '%1' finns redan. Vill du installera i den ändå?"},
    {Message::BadFolder,               "Pages",     "Err_Folder",             "'%1' är ingen mapp som det går att installera i. Skriv enhet och mapp, till exempel %2."},
    {Message::BadGroup,                "Pages",     "Err_Group",              "'%1' kan inte vara namnet på en programgrupp. Skriv ett annat namn."},
    {Message::NoRoom,                  "Pages",     "Err_NoRoom",             "Det finns inte tillräckligt med ledigt utrymme på %1. Välj en annan plats eller frigör utrymme."},
    {Message::TestTitle,              "Test",      "Title",                   "Test av %1"},
    {Message::PreviewTitle,           "Test",      "Title_Preview",           "Förhandsgranskning av %1"},
    {Message::Unnamed,                "Test",      "Msg_Unnamed",             "ett projekt utan namn"},
    {Message::TestNothing,            "Test",      "Msg_Nothing",             "Det här är ett test. Ingenting installeras."},
    {Message::TestPages,              "Test",      "Msg_Pages",               "Dialogrutor som installationen visar:"},
    {Message::TestNoPages,            "Test",      "Msg_NoPages",             "Installationen visar inga dialogrutor."},
    {Message::Screen,                 "Test",      "Msg_Screen",              "Installationsskärmen:"},
    {Message::ScreenTitle,            "Test",      "Msg_ScreenTitle",         "Titel: %1"},
    {Message::ScreenSubTitle,         "Test",      "Msg_ScreenSubTitle",      "Undertitel: %1"},
    {Message::ScreenSize,             "Test",      "Msg_ScreenSize",          "Storlek: %1 bildpunkter"},
    {Message::ScreenPicture,          "Test",      "Msg_ScreenPicture",       "Bakgrundsbild: %1"},
    {Message::Close,                  "Test",      "Button_Close",            "Stäng"},
    {Message::TestFiles,              "Test",      "Err_TestFiles",           "Testet kan inte visas (%1). Starta det på nytt."},
    {Message::PackageFileMissing,     "Package",   "Package_FileMissing",     "%1 saknas eller kan inte läsas"},
    {Message::PackageFileIncomplete,  "Package",   "Package_FileIncomplete",  "%1 är ofullständig"},
    {Message::PackageFileDamaged,     "Package",   "Package_FileDamaged",     "%1 är skadad"},
    {Message::PackageFileSize,        "Package",   "Package_FileSize",        "%1 har fel storlek"},
    {Message::PackageFilesDiffer,     "Package",   "Package_FilesDiffer",     "%1 och %2 hör inte ihop"},
    {Message::PackageForPreview,      "Package",   "Package_ForPreview",      "%1 är skriven för en förhandsgranskning"},
    {Message::PackageNotArchive,      "Package",   "Package_NotArchive",      "%1 är inget arkiv"},
    {Message::PackageUnknownPacking,  "Package",   "Package_UnknownPacking",  "%1 är packad på ett okänt sätt"},
    {Message::PackageBadFolder,       "Package",   "Package_BadFolder",       "%1 saknar giltig mapp: %2"},
    {Message::PartRegistryLine,       "Skipped",   "Part_RegistryLine",       "registerraden \"%1\""},
    {Message::PartIniLine,            "Skipped",   "Part_IniLine",            "INI-raden \"%1\""},
    {Message::PartRegistration,       "Skipped",   "Part_Registration",       "registreringen av %1"},
    {Message::PartScriptBefore,       "Skipped",   "Part_ScriptBefore",       "skriptet före installationen"},
    {Message::PartScriptAfter,        "Skipped",   "Part_ScriptAfter",        "skriptet efter installationen"},
    {Message::PartStartupLines,       "Skipped",   "Part_StartupLines",       "raderna till %1"},
    {Message::PartNetTest,            "Skipped",   "Part_NetTest",            "testet av .NET Framework"},
    {Message::PartProgram,            "Skipped",   "Part_Program",            "program %1 efter installationen"},
    {Message::PartDocument,           "Skipped",   "Part_Document",           "dokumentet efter installationen"},
    {Message::PartRestart,            "Skipped",   "Part_Restart",            "omstarten av datorn"},
    {Message::PartSound,              "Skipped",   "Part_Sound",              "ljudet till installationsskärmen"},
    {Message::PartDataAccess,         "Skipped",   "Part_DataAccess",         "installationen av dataåtkomst (%1)"},
    {Message::SkipNotYet,             "Skipped",   "Skip_NotYet",             "stöds inte av den här versionen av installationsprogrammet"},
    {Message::SkipSilent,              "Skipped",   "Skip_Silent",            "startas inte när ingenting visas"},
    {Message::SkipComponentOff,       "Skipped",   "Skip_ComponentOff",       "komponent %1 installeras inte"},
    {Message::SkipPartOfWindows,      "Skipped",   "Skip_PartOfWindows",      "systemfilen ingår redan i den här versionen av Windows"},
    {Message::SkipNoSource,           "Skipped",   "Skip_NoSource",           "paketet har ingen källfil till raden"},
    {Message::SkipNobodyToAsk,        "Skipped",   "Skip_NobodyToAsk",        "filen finns redan och ingen kan tillfrågas"},
    {Message::SkipUserKeepsFile,      "Skipped",   "Skip_UserKeepsFile",      "filen finns redan och ska behållas"},
    {Message::SkipNeverReplaced,      "Skipped",   "Skip_NeverReplaced",      "filen finns redan och ska aldrig ersättas"},
    {Message::SkipReadOnly,           "Skipped",   "Skip_ReadOnly",           "den befintliga filen är skrivskyddad"},
    {Message::SkipNoVersion,          "Skipped",   "Skip_NoVersion",          "den befintliga filen har version %1, den nya saknar version"},
    {Message::SkipNewerVersion,       "Skipped",   "Skip_NewerVersion",       "den befintliga filen har nyare version (%1)"},
    {Message::SkipSameVersion,        "Skipped",   "Skip_SameVersion",        "den befintliga filen har samma version (%1)"},
    {Message::SkipNewerFile,          "Skipped",   "Skip_NewerFile",          "den befintliga filen är nyare (%1)"},
    {Message::SkipNoFile,             "Skipped",   "Skip_NoFile",             "filen finns inte"},
    {Message::SkipNotSelfRegistering, "Skipped",   "Skip_NotSelfRegistering", "filen kan inte registrera sig själv"},
    {Message::SkipRegistrationFailed, "Skipped",   "Skip_RegistrationFailed", "filen kunde inte registreras"},
    {Message::SkipFixedRoot,          "Skipped",   "Skip_FixedRoot",          "%1 kan inte ändras"},
    {Message::SkipSystemKey,          "Skipped",   "Skip_SystemKey",          "nyckeln hör till systemet och får inte tas bort"},
    {Message::SkipNotHexadecimal,     "Skipped",   "Skip_NotHexadecimal",     "binärdata är inte hexadecimala tal med mellanslag emellan"},
    {Message::SkipNoData,             "Skipped",   "Skip_NoData",             "data är varken text inom citattecken, ett tal eller binärdata"},
    {Message::SkipNoRootKey,          "Skipped",   "Skip_NoRootKey",          "raden börjar inte med någon av registrets rotnycklar"},
    {Message::SkipNoSubKey,           "Skipped",   "Skip_NoSubKey",           "subnyckel saknas"},
    {Message::SkipNoEquals,           "Skipped",   "Skip_NoEquals",           "likhetstecken saknas efter värdets namn"},
    {Message::SkipIniComment,         "Skipped",   "Skip_IniComment",         "en kommentar skrivs inte till INI-filen"},
    {Message::SkipIniNoFile,          "Skipped",   "Skip_IniNoFile",          "raden står inte under något filnamn"},
    {Message::SkipIniNoSection,       "Skipped",   "Skip_IniNoSection",       "raden står inte under någon sektion"},
    {Message::SkipIniUnreadable,      "Skipped",   "Skip_IniUnreadable",      "raden är varken filnamn, sektion eller namn=värde"},
    {Message::SkipIniUnicode,         "Skipped",   "Skip_IniUnicode",         "INI-filer i Unicode ändras inte"},
    {Message::UninstallTitle,         "Uninstall", "Title",                   "Avinstallation av %1"},
    {Message::UninstallQuestion,      "Uninstall", "Ask_Uninstall",           "Vill du ta bort %1 från datorn? Det här tas bort:"},
    {Message::UninstallRunning,       "Uninstall", "Msg_Running",             "Tar bort filer och inställningar..."},
    {Message::UninstallDone,          "Uninstall", "Msg_Done",                "%1 har tagits bort från datorn."},
    {Message::UninstallPartly,        "Uninstall", "Msg_Partly",              "%1 har tagits bort, men några filer eller inställningar kunde inte tas bort:"},
    {Message::UninstallNoLog,         "Uninstall", "Err_NoLog",               "Avinstallationen kan inte startas. Filen '%1' saknas eller är skadad."},
    {Message::UninstallFailed,        "Uninstall", "Err_Failed",              "Avinstallationen misslyckades (%1)."},
    {Message::UninstallButton,        "Uninstall", "Button_Uninstall",        "&Avinstallera"},
    {Message::UninstallLeft,          "Uninstall", "Msg_Left",                "%1 har tagits bort från datorn. Det här finns kvar:"},
    {Message::UninstallRestart,       "Uninstall", "Msg_Restart",             "%1 har tagits bort från datorn. Starta om datorn, så försvinner även det som används nu:"},
    {Message::UninstallGone,          "Uninstall", "Err_Gone",                "Programmet har redan avinstallerats. Det som finns kvar tas bort när datorn startas om."},
    {Message::LogBegins,              "Log",       "Log_Begins",              "Installation av %1 från %2"},
    {Message::LogDone,                "Log",       "Log_Done",                "Klart."},
    {Message::LogEnds,                "Log",       "Log_Ends",                "Avslutar med kod %1"},
    {Message::LogEndsBecause,         "Log",       "Log_EndsBecause",         "Avslutar med kod %1: %2"},
    {Message::LogSkips,               "Log",       "Log_Skips",               "Hoppar över %1: %2"},
    {Message::LogUndoes,              "Log",       "Log_Undoes",              "Installationen avbryts. Alla ändringar ångras."},
    {Message::LogUndoesInterrupted,   "Log",       "Log_UndoesInterrupted",   "En tidigare installation avbröts. Dess ändringar ångras: %1"},
    {Message::LogClearsInterrupted,   "Log",       "Log_ClearsInterrupted",   "Tar bort temporära filer efter en tidigare installation: %1"},
    {Message::LogCannotUndo,          "Log",       "Log_CannotUndo",          "Kan inte ångra en ändring: %1"},
    {Message::LogWrongSystem,         "Log",       "Log_WrongSystem",         "Paketet är inte avsett för den här versionen av Windows"},
    {Message::LogReads,               "Log",       "Log_Reads",               "Läser %1"},
    {Message::LogNoManifest,          "Log",       "Log_NoManifest",          "Paketet har ingen %1. Dess filer prövas utan den."},
    {Message::LogMakesFolder,         "Log",       "Log_MakesFolder",         "Skapar mappen %1"},
    {Message::LogCopies,              "Log",       "Log_Copies",              "Kopierar %1"},
    {Message::LogBacksUp,             "Log",       "Log_BacksUp",             "Säkerhetskopierar %1 till %2"},
    {Message::LogReplacesAtRestart,   "Log",       "Log_ReplacesAtRestart",   "Filen %1 används och ersätts när datorn startas om"},
    {Message::LogMakesShortcut,       "Log",       "Log_MakesShortcut",       "Skapar genvägen %1"},
    {Message::LogRemovesShortcut,     "Log",       "Log_RemovesShortcut",     "Tar bort den gamla genvägen %1"},
    {Message::LogWritesRegistry,      "Log",       "Log_WritesRegistry",      "Skriver till registret: %1"},
    {Message::LogRemovesRegistry,     "Log",       "Log_RemovesRegistry",     "Tar bort ur registret: %1"},
    {Message::LogWritesIni,           "Log",       "Log_WritesIni",           "Skriver till %1: %2"},
    {Message::LogRegisters,           "Log",       "Log_Registers",           "Registrerar %1"},
    {Message::LogRegistersFont,       "Log",       "Log_RegistersFont",       "Registrerar teckensnittet %1"},
    {Message::LogStarts,               "Log",       "Log_Starts",             "Startar %1"},
    {Message::LogRemoves,             "Log",       "Log_Removes",             "Tar bort %1"},
    {Message::LogRemovesAtRestart,    "Log",       "Log_RemovesAtRestart",    "Filen %1 används och tas bort när datorn startas om"},
    {Message::LogRemovesFolder,       "Log",       "Log_RemovesFolder",       "Tar bort mappen %1"},
    {Message::LogPutsBack,            "Log",       "Log_PutsBack",            "Lägger tillbaka %1"},
    {Message::LogTakesBackRestart,    "Log",       "Log_TakesBackRestart",    "Filen %1 ersätts inte längre när datorn startas om"},
    {Message::LogCannotRemove,        "Log",       "Log_CannotRemove",        "Kan inte ta bort %1: %2"},
    {Message::ReasonFileNotFound,     "Reasons",   "Reason_FileNotFound",     "filen '%1' finns inte"},
    {Message::ReasonFolderNotFound,   "Reasons",   "Reason_FolderNotFound",   "mappen till '%1' finns inte"},
    {Message::ReasonAccessDenied,     "Reasons",   "Reason_AccessDenied",     "åtkomst nekas till '%1'"},
    {Message::ReasonNoAccess,         "Reasons",   "Reason_NoAccess",         "'%1' kan inte läsas eller skrivas"},
    {Message::ReasonDiskFull,         "Reasons",   "Reason_DiskFull",         "disken är full: '%1'"},
    {Message::ReasonErrorNumber,      "Reasons",   "Reason_ErrorNumber",      "fel %1"},
    {Message::ReasonErrorAt,          "Reasons",   "Reason_ErrorAt",          "fel %1: '%2'"},
    {Message::ReasonUnexpected,       "Reasons",   "Reason_Unexpected",       "oväntat fel"},
    {Message::ReasonCancelled,        "Reasons",   "Reason_Cancelled",        "användaren avbröt"},
    {Message::ReasonUsedByOthers,     "Reasons",   "Reason_UsedByOthers",     "filen används av andra program"},
    {Message::ReasonWasInWindows,     "Reasons",   "Reason_WasInWindows",     "filen fanns i Windows redan före installationen"},
    {Message::ReasonValueChanged,     "Reasons",   "Reason_ValueChanged",     "värdet har ändrats efter installationen"},
    {Message::ReasonKeyNotEmpty,      "Reasons",   "Reason_KeyNotEmpty",      "nyckeln är inte tom"},
    {Message::ReasonFolderNotEmpty,   "Reasons",   "Reason_FolderNotEmpty",   "mappen är inte tom"},
    {Message::ReasonOutsideProduct,   "Reasons",   "Reason_OutsideProduct",   "den ligger utanför programmets mappar"},
    {Message::ReasonLinkInPath,     "Reasons",   "Reason_LinkOnTheWay",     "en länk leder till en annan mapp"},
    {Message::ReasonAtRestart,        "Reasons",   "Reason_AtRestart",        "tas bort när datorn startas om"},
};
// clang-format on
static_assert(std::size(kMessages) == std::size_t(Message::Count));

constexpr bool IsInOrder()
{
    for (std::size_t i = 0; i < std::size(kMessages); ++i)
        if (kMessages[i].message != Message(i))
            return false;
    return true;
}
static_assert(IsInOrder(), "the rows stand in the order of Message");

} // namespace

const MessageKey& KeyOf(Message message)
{
    return kMessages[std::size_t(message)];
}

bool IsOfUninstaller(Message message)
{
    const std::string_view section = KeyOf(message).section;
    if (section == "Uninstall" || section == "Log" || section == "Reasons")
        return true;
    switch (message) {
    case Message::Ok:
    case Message::Cancel:
    case Message::Yes:
    case Message::No:
    case Message::BadSwitch:
    case Message::OtherSetup:
        return true;
    default:
        return false;
    }
}

} // namespace quillon
