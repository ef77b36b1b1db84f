// The package against its manifest, before anything is written: what a scratched disk, a download
// that broke off or a hand in between has changed is found here and nowhere later.
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
/// manifest says. The pieces of the later disks are left to whoever puts the disks in. A package
/// without a manifest passes, and the log says so.
void CheckAgainstManifest(const PackageCheckInput& input);

} // namespace quillon
