#include "filelist/main_directory.h"

#include <algorithm>
#include <iterator>

namespace quillon {

namespace {

constexpr const char* kBadMainDirectory = "Felaktig huvudkatalog";

// The setup knows these before it asks for the main folder.
constexpr std::string_view kAllowed[] = {"%PROGRAMFILES", "%MYDOCUMENTS", "%REG1", "%REG2",
                                         "%REG3"};

/// "C:\%PROGRAMFILES\App" without its first three characters: the drive that a folder dialog puts
/// in front of a variable that is one itself.
Text WithoutDriveBeforeVariable(const Text& text)
{
    const std::size_t drive = FirstCharacters(text, 1).size();
    if (text.compare(drive, 2, ":\\") != 0)
        return text;
    const Text rest = text.substr(drive + 2);
    const Text upper = UpperCase(rest);
    const bool isVariable = upper.starts_with("%PROGRAMFILES") || upper.starts_with("%MYDOCUMENTS");
    return isVariable ? rest : text;
}

bool HoldsAllowedVariable(const Text& text)
{
    return std::any_of(std::begin(kAllowed), std::end(kAllowed), [&](std::string_view variable) {
        return text.find(variable) != Text::npos;
    });
}

} // namespace

Text CheckMainDirectory(std::string_view typed, Ask& ask)
{
    Text text = WithoutDriveBeforeVariable(TrimBlanks(typed));
    // This also keeps a path of the network away.
    if (text.find("\\\\") != Text::npos) {
        ask.Critical(kBadMainDirectory, "Huvudkatalogen är ogiltig!");
        return {};
    }
    if (text.ends_with('\\'))
        text.pop_back();
    // Kept: one of the allowed variables lets the text pass, whatever else is in it.
    if (HoldsAllowedVariable(text))
        return text;
    if (text.find('%') != Text::npos)
        ask.Critical("Ogiltig variabel",
                     "Du kan endast använda %PROGRAMFILES, %MYDOCUMENTS, %REG1, %REG2 eller %REG3 "
                     "som variabel i huvudkatalogen! Inga andra variabler är tillåtna!");
    if (CharacterCount(text) == 2 && text.ends_with(':')) {
        ask.Critical(kBadMainDirectory, "Huvudkatalogen måste innehålla ett katalognamn. Den får "
                                        "inte bara bestå av en enhetsbokstav!");
        return {};
    }
    return text;
}

} // namespace quillon
