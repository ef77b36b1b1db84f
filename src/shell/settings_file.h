// QUILLON.INI, the tool's memory from one run to the next, in the user's folder for settings.
// docs/settings-file.md shows one.
#pragma once

#include "shell/session.h"

namespace quillon {

/// Empty where the machine has no folder for settings.
Text SettingsFile(const Machine& machine);

/// Settings, recent files and saved options from the file. The file may be missing, and no value in
/// it can do harm: a missing or invalid one is replaced by the value of a new machine.
void ReadDataFromIniFile(Session& session);

/// Lines of the file that are not ours stay. A file that can't be written is not reported.
void WriteDataToIniFile(const Session& session);

} // namespace quillon
