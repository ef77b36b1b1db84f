// The folder where a development system keeps the copies of system files that may be distributed.
#pragma once

#include "platform/machine.h"

namespace quillon {

/// Beside the program that is registered for the development system's projects, for the checks of
/// Create. Empty where no such system is registered on this machine.
Text RedistFolder(const Machine& machine);

/// The same for new rows. Kept: it takes the registered command for a path in quotation marks: the
/// first character is dropped whatever it is, and the last backslash ends the folder even where it
/// belongs to an argument.
Text GetDirectoryToVB6RedistDir(const Machine& machine);

} // namespace quillon
