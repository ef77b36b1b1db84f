#include "runtime/target.h"

namespace quillon {

namespace {

struct NamedRoot {
    const char* name;
    const char* shortName;
    RegistryRoot root;
};

constexpr NamedRoot kRoots[] = {
    {"HKEY_CLASSES_ROOT", "HKCR", RegistryRoot::ClassesRoot},
    {"HKEY_CURRENT_USER", "HKCU", RegistryRoot::CurrentUser},
    {"HKEY_LOCAL_MACHINE", "HKLM", RegistryRoot::LocalMachine},
    {"HKEY_USERS", "HKU", RegistryRoot::Users},
    {"HKEY_CURRENT_CONFIG", "HKCC", RegistryRoot::CurrentConfig},
    {"HKEY_DYN_DATA", "HKDD", RegistryRoot::DynData},
};

} // namespace

std::optional<RegistryRoot> RootNamed(std::string_view name)
{
    for (const NamedRoot& row : kRoots)
        if (EqualIgnoreCase(name, row.name) || EqualIgnoreCase(name, row.shortName))
            return row.root;
    return std::nullopt;
}

Text RootName(RegistryRoot root)
{
    for (const NamedRoot& row : kRoots)
        if (row.root == root)
            return row.name;
    return {};
}

Text KeyText(const RegistryKey& key)
{
    return key.subKey.empty() ? RootName(key.root) : RootName(key.root) + "\\" + key.subKey;
}

} // namespace quillon
