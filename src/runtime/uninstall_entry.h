// The product's entry in the system's list of installed programs.
#pragma once

#include "runtime/install.h"

namespace quillon {

/// Where the entry of that project stands.
RegistryKey UninstallEntryKey(const Project& project);

void WriteUninstallEntry(const InstallInput& input, Changes& changes);

} // namespace quillon
