// The copy options of a row: a letter each, always written in the order of the table. What reads
// them looks for single letters, so the order matters for writing only.
#pragma once

#include "formats/copy_letters.h"
#include "helpers/text.h"

#include <array>
#include <functional>
#include <string_view>

namespace quillon {

struct CopyOption {
    char letter;
    std::string_view control; // of DlgCopyOptions; empty where the options dialog has none
    std::string_view caption;
    std::string_view meaning;
};

// clang-format off
inline constexpr std::array<CopyOption, 13> kCopyOptions{{
    {CopyLetter::kDateCheck, "cDateTimeCheck", "Kontrollera &datum och tid", "compare date and time with an existing file"},
    {CopyLetter::kVersionCheck, "cVersionCheck", "Kontrollera &version", "compare version numbers"},
    {CopyLetter::kNeverReplace, "cNeverReplace", "&Ersätt aldrig existerande fil", "never replace an existing file"},
    {CopyLetter::kWarnIfExists, "cWarnIfExist", "Var&na alltid om en fil redan existerar", "always warn if the file exists"},
    {CopyLetter::kRegister, "cRegisterFile", "&Registrera fil", "register the file after copying"},
    {CopyLetter::kActiveFile, "cActiveFile", "Hantera &aktiv fil", "handle a file that is in use"},
    {CopyLetter::kShared, "cSharedFile", "&Filen delas med andra program", "the file is shared with other programs"},
    {CopyLetter::kWriteProtected, "cWriteProtected", "Ersät&t även skrivskyddad fil", "replace also a write-protected file"},
    {CopyLetter::kSetWriteProtection, "cSetWriteProtection", "&Sätt på skrivskydd", "set write protection after copying"},
    {CopyLetter::kBackup, "cMakeBackup", "Säkerhetskopiera alltid e&xisterande fil", "always back the existing file up"},
    {CopyLetter::kNotIfEqualVersion, "cVersionNoCopyIfEqual", "&Kopiera inte om samma version", "no copy if the versions are equal; only together with V"},
    {CopyLetter::kNeverUninstall, "cNoUninstall", "Denna fil f&år aldrig avinstalleras", "this file is never uninstalled"},
    {CopyLetter::kFont, "", "", "register the file as a font; only on .ttf rows, as DWF or DWFN"},
}};
// clang-format on

/// The options that a new row starts with, by its file name. `hasVersion` says whether the file
/// itself carries a version; it is asked only where the answer counts, and never without
/// `useVersionRules`.
Text StartingCopyOptions(std::string_view fileName, bool useVersionRules,
                         const std::function<bool()>& hasVersion);

/// The same for a file that is taken from the Windows system folder.
Text StartingSystemFileOptions(std::string_view fileName, bool isRuntimeFile);

} // namespace quillon
