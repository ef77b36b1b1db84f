// Reads a package's archive without the library that travels with it.
#pragma once

#include "runtime/package/container.h"

namespace quillon {

OpenContainer DirectContainers();

} // namespace quillon
