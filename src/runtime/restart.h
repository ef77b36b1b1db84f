// Whether the machine is started anew once a product is installed.
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
    // False where nobody is shown a box, under /norestart, and where the user may not start the
    // machine anew: it goes on running then.
    bool mayRestart = true;
};

/// `Done`, `RestartNeeded`, or `RestartStarted` for whoever called the setup to start the machine
/// anew as the last thing of all.
ExitCode DecideRestart(const RestartInput& input);

} // namespace quillon
