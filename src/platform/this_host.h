// The host of the system that a program is built for. All folders above this one get the machine
// through here, so that a port to another system changes this file alone.
#pragma once

#ifdef _WIN32
#error "The tool is not built for Windows yet; its host would be chosen here."
#endif

#include "platform/posix/fault_handler.h"
#include "platform/posix/posix_host.h"
#include "platform/posix/signals.h"

namespace quillon {

using ThisHost = PosixHost;

} // namespace quillon
