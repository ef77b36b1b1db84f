#include "runtime/shared_files.h"

namespace quillon {

RegistryKey SharedFilesKey()
{
    return {RegistryRoot::LocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\SharedDLLs"};
}

std::optional<std::uint32_t> CountOfUsers(const Target& target, const Text& path)
{
    auto data = target.ReadValue(SharedFilesKey(), path);
    if (data && data->type == kRegistryBytes)
        data->type = kRegistryNumber;
    return data ? NumberOf(*data) : std::nullopt;
}

} // namespace quillon
