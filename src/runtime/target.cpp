#include "runtime/target.h"

#include "formats/registry_marks.h"
#include "platform/registry_roots.h"

namespace quillon {

std::optional<RegistryRoot> RootNamed(std::string_view name)
{
    for (const RegistryRootName& row : kRegistryRootNames)
        if (EqualIgnoreCase(name, row.name) || EqualIgnoreCase(name, row.shortName))
            return row.root;
    return std::nullopt;
}

Text RootName(RegistryRoot root)
{
    for (const RegistryRootName& row : kRegistryRootNames)
        if (row.root == root)
            return row.name;
    return {};
}

Text KeyText(const RegistryKey& key)
{
    return key.subKey.empty() ? RootName(key.root) : RootName(key.root) + "\\" + key.subKey;
}

Text ValueText(const RegistryKey& key, std::string_view name)
{
    return KeyText(key) + Text(kValueMark) + Text(name);
}

} // namespace quillon
