#include "runtime/target.h"

#include "platform/registry_roots.h"

namespace quillon {

namespace {

// The short names, in the order of the long ones.
constexpr std::array<const char*, kRegistryRoots.size()> kShortNames = {"HKCR", "HKCU", "HKLM",
                                                                        "HKU",  "HKCC", "HKDD"};

} // namespace

std::optional<RegistryRoot> RootNamed(std::string_view name)
{
    for (std::size_t i = 0; i < kRegistryRoots.size(); ++i)
        if (EqualIgnoreCase(name, kRegistryRoots[i]) || EqualIgnoreCase(name, kShortNames[i]))
            return RegistryRootAt(i);
    return std::nullopt;
}

Text RootName(RegistryRoot root)
{
    for (std::size_t i = 0; i < kRegistryRoots.size(); ++i)
        if (RegistryRootAt(i) == root)
            return kRegistryRoots[i];
    return {};
}

Text KeyText(const RegistryKey& key)
{
    return key.subKey.empty() ? RootName(key.root) : RootName(key.root) + "\\" + key.subKey;
}

} // namespace quillon
