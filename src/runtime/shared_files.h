// The system's counts of the products that use a shared file.
#pragma once

#include "runtime/target.h"

namespace quillon {

/// Where the system counts the products that use a shared file.
RegistryKey SharedFilesKey();

/// How many products use the file; nothing where there is no count. Older setups keep the number as
/// four bytes.
std::optional<std::uint32_t> CountOfUsers(const Target& target, const Text& path);

} // namespace quillon
