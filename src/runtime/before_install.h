// What has to hold before the first file of a package is written.
#pragma once

#include "runtime/install_plan.h"

namespace quillon {

/// Whether the project names the system.
Flag IsMeantFor(const section::TargetOS& systems, SystemKind system);

/// Throws `RunError` of a full disk where a drive has less room than goes there.
void CheckFreeSpace(const FileSystem& files, const InstallPlan& plan);

/// Copies the programs that an installation leaves on the machine to the work folder.
void KeepHelpers(FileSystem& files, const Text& packageFolder, const Text& workFolder);

/// Throws `SetupFailure` where one that the plan needs is missing.
void CheckHelpers(const FileSystem& files, const Text& workFolder, const InstallPlan& plan,
                  const LanguageTexts& texts);

/// Throws `SetupFailure` where the product can't be installed for those that it is asked for.
void CheckScope(const InstallPlan& plan, const LanguageTexts& texts, const Target& target,
                const Machine& machine);

} // namespace quillon
