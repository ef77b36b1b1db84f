// The product's entry in the system's list of installed programs.
#pragma once

#include "runtime/install.h"

namespace quillon {

void WriteUninstallEntry(const InstallInput& input, Changes& changes);

} // namespace quillon
