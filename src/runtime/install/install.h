// Does what the plan says: folders, files, registry, INI files, registrations, shortcuts,
// uninstaller. Whatever fails, everything done so far is undone before the failure is passed on.
#pragma once

#include "platform/ask.h"
#include "runtime/install/install_plan.h"
#include "runtime/journal/install_transaction.h"
#include "runtime/package/package_reader.h"

namespace quillon {

struct InstallInput {
    Host& host;
    Target& target;
    Ask& ask;
    ActionLog& log;
    const LanguageTexts& texts;
    const SetupInformation& setup;
    const SetupVariables& variables;
    const InstallPlan& plan;
    const PackageReader& package;
    Text helpersFolder; // where the runtime's own programs lie while it works
    bool silent = false;
    const PackageManifest& manifest;
};

struct InstallResult {
    bool needsRestart = false;
};

/// Throws `RunError`, `ZipError` or `SetupFailure`, after having undone everything; where that
/// can't be done the `SetupFailure` says so.
InstallResult Install(const InstallInput& input);

} // namespace quillon
