// Reads a package's archive without the library that travels with it.
#pragma once

#include "runtime/container.h"

namespace quillon {

OpenContainer DirectContainers();

} // namespace quillon
