// What has to hold before the first file of a package is written.
#pragma once

#include "formats/package_manifest.h"
#include "runtime/install/install_plan.h"

namespace quillon {

/// Whether the project names the system.
Flag IsMeantFor(const section::TargetOS& systems, SystemKind system);

/// Throws `RunError` of a full disk where a drive has less room than goes there.
void CheckFreeSpace(const FileSystem& files, const InstallPlan& plan);

struct HelperCopies {
    FileSystem& files;
    const Text& packageFolder;
    const Text& workFolder;
    const PackageManifest& manifest;
    const LanguageTexts& texts;
};

/// Copies the programs that an installation starts or leaves on the machine to the work folder, as
/// far as the package has them. Throws `SetupFailure` where a copy is not what the manifest lists.
void KeepHelpers(const HelperCopies& input);

/// Throws `SetupFailure` where one that the plan needs is missing.
void CheckHelpers(const FileSystem& files, const Text& workFolder, const InstallPlan& plan,
                  const LanguageTexts& texts);

/// Throws `SetupFailure` where the product can't be installed for those that it is asked for.
void CheckScope(const InstallPlan& plan, const LanguageTexts& texts, const Target& target,
                const Machine& machine);

} // namespace quillon
