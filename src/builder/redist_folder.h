// The folder where a development system keeps the copies of system files that may be distributed.
#pragma once

#include "platform/machine.h"

namespace quillon {

/// Empty where no such system is registered on this machine.
Text RedistFolder(const Machine& machine);

} // namespace quillon
