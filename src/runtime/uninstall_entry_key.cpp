#include "runtime/uninstall_entry_key.h"

#include "helpers/windows_name.h"

namespace quillon {

RegistryKey UninstallEntryKey(const Text& product, InstallScope scope)
{
    return {scope == InstallScope::CurrentUser ? RegistryRoot::CurrentUser
                                               : RegistryRoot::LocalMachine,
            "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + AsFileName(product)};
}

RegistryKey RecordedUninstallEntry(const Text& product, const std::vector<JournalRecord>& records)
{
    const RegistryKey ofUser = UninstallEntryKey(product, InstallScope::CurrentUser);
    for (const JournalRecord& record : records)
        if (const auto* const value = std::get_if<record::Value>(&record);
            value && EqualIgnoreCase(KeyText(value->key), KeyText(ofUser)))
            return ofUser;
    return UninstallEntryKey(product);
}

} // namespace quillon
