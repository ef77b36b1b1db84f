// The program that a package for download starts before anything else, such as a test of a licence.
// What it ends with can end the setup or give it another folder.
#pragma once

#include "formats/package_manifest.h"
#include "platform/ask.h"
#include "runtime/log/action_log.h"
#include "runtime/setup_variables.h"

namespace quillon {

/// The name that it has in the setup's private folder.
inline constexpr const char* kFirstProgram = "QNFIRST.EXE";

struct FirstProgramInput {
    Host& host;
    Target& target;
    Ask& ask;
    ActionLog& log;
    const LanguageTexts& texts;
    const SetupInformation& setup;
    const SetupVariables& variables;
    const PackageManifest& manifest;
    Text packageFolder;
    Text workFolder;
    bool silent = false;
};

/// The main folder that it asks for; nothing where there is no such program or it asks for none.
/// Throws `SetupFailure` where it ends the setup, or is not what the package's manifest says.
std::optional<Text> RunFirstProgram(const FirstProgramInput& input);

} // namespace quillon
