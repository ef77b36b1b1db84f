// What the registry's roots are called, in the order in which lists offer them.
#pragma once

#include "platform/machine.h"

#include <array>

namespace quillon {

inline constexpr std::array<const char*, 6> kRegistryRoots = {
    "HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER",   "HKEY_LOCAL_MACHINE",
    "HKEY_USERS",        "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA",
};

/// The root at a place of that list, which counts from 0.
constexpr RegistryRoot RegistryRootAt(std::size_t index)
{
    return static_cast<RegistryRoot>(index + 1);
}

} // namespace quillon
