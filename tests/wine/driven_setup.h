// Windows of Windows programs, found, read and pressed by a second program beside them in the
// prefix: `tests/wine/programs/drive_setup.cpp`.
#pragma once

#include "wine/wine.h"

#include <string>

namespace quillon::test {

/// Wine gets to know that there is no screen; it makes no window otherwise.
void UseNoScreen(const WinePrefix& prefix);

/// Does what the lines of the script say. What the driver has logged.
std::string DriveSetup(const WinePrefix& prefix, const std::string& script);

} // namespace quillon::test
