// A restart of the machine that Windows refuses after the setup has asked for it. The logs are
// ended before the restart, since the system may end the setup as soon as it agrees; where it
// refuses, they are corrected afterwards.
#pragma once

#include "platform/file_system.h"
#include "platform/machine.h"
#include "runtime/log/json_log.h"
#include "runtime/texts/language_file.h"

namespace quillon {

struct RefusedRestart {
    FileSystem& files;
    const Machine& machine;
    const LanguageTexts& texts;
    const LogFiles& logs; // as they were ended with the code of a restart that is started
    ExitCode code;        // that the program ends with instead
};

/// Adds a line to the readable log, and puts the code into the record that ends the others. Nothing
/// is thrown where a log can't be written.
void LogRefusedRestart(const RefusedRestart& refused);

} // namespace quillon
