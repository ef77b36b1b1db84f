// Compares the package with its manifest before anything is written, so that damage by a scratched
// disk, a broken download or a changed file is found here and nowhere later.
#pragma once

#include "formats/install_row.h"
#include "formats/package_manifest.h"
#include "formats/setup_information.h"
#include "platform/ask.h"
#include "runtime/log/action_log.h"
#include "runtime/texts/language_file.h"

namespace quillon {

struct PackageCheckInput {
    const FileSystem& files;
    Ask& ask;
    ActionLog& log;
    const LanguageTexts& texts;
    const SetupInformation& setup;
    const std::vector<InstallRow>& rows;
    const PackageManifest& manifest;
    Text packageFolder;
    InputFile* archive = nullptr; // the one of the package's files, where it is open already
};

/// Throws `SetupFailure` for the first file that is missing, is not listed, or is not what the
/// manifest says. The pieces on later disks are left to the caller that asks for the disks. A
/// package without a manifest passes, and the log says so.
void CheckAgainstManifest(const PackageCheckInput& input);

} // namespace quillon
