// The product's entry in the system's list of installed programs.
#pragma once

#include "runtime/install.h"

namespace quillon {

/// Where the entry of the product of that name is.
RegistryKey UninstallEntryKey(const Text& product);

void WriteUninstallEntry(const InstallInput& input, InstallTransaction& changes);

} // namespace quillon
