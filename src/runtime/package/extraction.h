// /EXTRACT: lays what a package holds into a folder, and installs nothing.
#pragma once

#include "runtime/package/package_reader.h"
#include "runtime/texts/language_file.h"

namespace quillon {

struct ExtractInput {
    FileSystem& files;
    Ask& ask;
    ActionLog& log;
    const LanguageTexts& texts;
    const std::vector<InstallRow>& rows;
    const PackageReader& package;
    Text folder;
};

/// What goes into the main folder lies in the folder itself; what goes elsewhere in one that is
/// named after the variable or the drive: "%SYSDIR\a" in "SYSDIR\a". A second file of the same name
/// gets its row's number after it. Throws `SetupFailure` where the folder holds anything, and of a
/// damaged package where a file that lies by itself has changed since the package was checked.
void ExtractPackage(const ExtractInput& input);

/// Where a row's file goes, below the folder.
Text ExtractedPath(const InstallRow& row);

} // namespace quillon
