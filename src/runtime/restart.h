// Whether the machine is restarted after a product was installed.
#pragma once

#include "platform/ask.h"
#include "project/records.h"
#include "runtime/exit_codes.h"
#include "runtime/texts/language_file.h"

namespace quillon {

struct RestartInput {
    const section::InstallOptions& options;
    Ask& ask;
    const LanguageTexts& texts;
    Text title;            // of the setup's boxes
    bool isNeeded = false; // a file takes its place then
    // False where no box is shown, under /norestart, and where the user may not restart the
    // machine: it then goes on running.
    bool mayRestart = true;
};

/// `Done`, `RestartNeeded`, or `RestartStarted` for a caller that has to restart the machine as its
/// last action.
ExitCode DecideRestart(const RestartInput& input);

} // namespace quillon
