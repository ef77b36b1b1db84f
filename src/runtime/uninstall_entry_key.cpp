#include "runtime/uninstall_entry_key.h"

#include "helpers/windows_name.h"

namespace quillon {

RegistryKey UninstallEntryKey(const Text& product, InstallScope scope)
{
    return {scope == InstallScope::CurrentUser ? RegistryRoot::CurrentUser
                                               : RegistryRoot::LocalMachine,
            "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + AsFileName(product)};
}

UninstallCommand ReadUninstallCommand(const Text& command)
{
    UninstallCommand read;
    Text* part = &read.program;
    for (std::size_t at = command.find('"'); at != Text::npos; at = command.find('"', at)) {
        const std::size_t end = command.find('"', at + 1);
        if (end == Text::npos || part == nullptr)
            break;
        *part = command.substr(at + 1, end - at - 1);
        part = part == &read.program ? &read.journal : nullptr;
        at = end + 1;
    }
    return read;
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
