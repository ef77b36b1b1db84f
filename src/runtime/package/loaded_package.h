// What a package says of itself, read whole before anything is done.
#pragma once

#include "formats/install_row.h"
#include "formats/package_manifest.h"
#include "formats/setup_information.h"
#include "platform/file_system.h"
#include "runtime/texts/language_file.h"

#include <optional>
#include <vector>

namespace quillon {

struct LoadedPackage {
    SetupInformation setup;
    std::vector<InstallRow> rows;
    PackageManifest manifest;
    LanguageTexts texts;
    std::optional<Reason> fault; // what is wrong with the package
};

/// Reads both INF files and the language file. `fault` says what is missing. `languageFile` is the
/// name of a language file to use instead of the project's own.
LoadedPackage LoadPackage(const FileSystem& files, const Text& packageFolder,
                          const Text& languageFile = {});

/// The same without the file list, also from files that were made for a preview.
LoadedPackage LoadSetupInformation(const FileSystem& files, const Text& packageFolder);

} // namespace quillon
