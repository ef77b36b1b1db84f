// What the registry's roots are called, in the order in which lists offer them.
#pragma once

#include "platform/machine.h"

#include <array>

namespace quillon {

struct RegistryRootName {
    RegistryRoot root;
    const char* name;
    const char* shortName;
};

// clang-format off
inline constexpr std::array<RegistryRootName, 6> kRegistryRootNames = {{
    {RegistryRoot::ClassesRoot,   "HKEY_CLASSES_ROOT",   "HKCR"},
    {RegistryRoot::CurrentUser,   "HKEY_CURRENT_USER",   "HKCU"},
    {RegistryRoot::LocalMachine,  "HKEY_LOCAL_MACHINE",  "HKLM"},
    {RegistryRoot::Users,         "HKEY_USERS",          "HKU"},
    {RegistryRoot::CurrentConfig, "HKEY_CURRENT_CONFIG", "HKCC"},
    {RegistryRoot::DynData,       "HKEY_DYN_DATA",       "HKDD"},
}};
// clang-format on

inline constexpr std::array kRegistryRoots = [] {
    std::array<const char*, kRegistryRootNames.size()> names{};
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = kRegistryRootNames[i].name;
    return names;
}();

/// The root at a place of that list, which counts from 0.
constexpr RegistryRoot RegistryRootAt(std::size_t index)
{
    return kRegistryRootNames[index].root;
}

} // namespace quillon
