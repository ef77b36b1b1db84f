#include "runtime/texts/setup_help.h"

namespace quillon {

namespace {

struct HelpRow {
    const char* switches;
    Message meaning;
    bool isOfUninstaller = false;
};

constexpr HelpRow kRows[] = {
    {"/S, /SILENT, /VERYSILENT, /quiet, /q, /qn", Message::HelpSilent, true},
    {"/passive, /qb", Message::HelpPassive, true},
    {"/D=, /DIR=, INSTALLDIR=", Message::HelpFolder},
    {"/COMPONENTS=, /GROUP=", Message::HelpChoices},
    {"/ALLUSERS, /CURRENTUSER", Message::HelpScope},
    {"/LANG=", Message::HelpLanguage},
    {"/PASSWORD=", Message::HelpPassword},
    {"/LOADINF=, /SAVEINF=", Message::HelpAnswers},
    {"/LOG, /LOG=, /LOGJSON=, /RESULT=", Message::HelpLogs, true},
    {"/norestart, /RESTARTEXITCODE=", Message::HelpRestart, true},
    {"/SP-, /SUPPRESSMSGBOXES, /NOCANCEL", Message::HelpBoxes, true},
    {"/CLOSEAPPLICATIONS, /NOCLOSEAPPLICATIONS", Message::HelpClose, true},
    {"/PLAN, /PLAN=", Message::HelpPlan},
    {"/extract:", Message::HelpExtract},
    {"/uninstall", Message::HelpUninstall},
    {"/version", Message::HelpVersion, true},
};

} // namespace

std::vector<Text> HelpLines(const LanguageTexts& texts, HelpOf program)
{
    std::vector<Text> lines{texts[Message::HelpHeading]};
    for (const HelpRow& row : kRows)
        if (program == HelpOf::Setup || row.isOfUninstaller)
            lines.push_back(Text(row.switches) + "  " + texts[row.meaning]);
    return lines;
}

Text VersionLine(const Text& product, const Text& version, const LanguageTexts& texts)
{
    return version.empty() ? product : texts(Message::VersionText, product, version);
}

} // namespace quillon
