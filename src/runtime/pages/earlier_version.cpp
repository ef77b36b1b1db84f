#include "runtime/pages/earlier_version.h"

#include "helpers/drive_path.h"
#include "helpers/windows_path.h"
#include "platform/registry_roots.h"
#include "runtime/command_line/switches.h"
#include "runtime/uninstall_entry_key.h"

#include <vector>

namespace quillon {

namespace {

std::optional<Text> FolderNamedBy(const Target& target, const RegistryKey& key, const Text& value)
{
    const auto data = target.ReadValue(key, value);
    const auto text = data ? TextOf(*data) : std::nullopt;
    if (!text)
        return std::nullopt;
    // Programs also register their own path, often in quotation marks.
    const Text path = RemoveLastBackslash(TrimBlanks(RemoveQuotes(*text)));
    return IsAbsolutePath(path + "\\") ? std::optional(path) : std::nullopt;
}

std::optional<Text> FolderOfOwnKey(const section::Updates& updates, const Target& target)
{
    const auto root = static_cast<std::size_t>(updates.AdvUpdateRegHKEYIndex);
    if (updates.AdvUpdateRegSubKey.empty() || root >= kRegistryRoots.size())
        return std::nullopt;
    return FolderNamedBy(target, {RegistryRootAt(root), updates.AdvUpdateRegSubKey},
                         updates.AdvUpdateRegValueName);
}

// A path to a file of the product leads to its folder.
Text FolderItself(const FileSystem& files, const Text& path)
{
    return files.FileExists(path) ? ExtractDirectory(path) : path;
}

// Nothing where the folder does not hold the product.
std::optional<Text> FolderOfProduct(const SetupInformation& setup, const FileSystem& files,
                                    const std::optional<Text>& named)
{
    if (!named)
        return std::nullopt;
    const Text folder = FolderItself(files, *named);
    const Text& referenceFile = setup.project.Updates.UpdateReferenceFile;
    const bool holds = referenceFile.empty() ? files.DirExists(folder)
                                             : files.FileExists(JoinPath(folder, referenceFile));
    return holds ? std::optional(folder) : std::nullopt;
}

// The folder that the list of programs names.
std::optional<EarlierVersion> ListedVersion(const SetupInformation& setup, const FileSystem& files,
                                            const Target& target, InstallScope wanted)
{
    std::vector<InstallScope> scopes{wanted};
    if (wanted == InstallScope::Project)
        scopes.push_back(InstallScope::CurrentUser);
    for (const InstallScope scope : scopes) {
        const RegistryKey entry = UninstallEntryKey(setup.project.ProjectName.ProjectName, scope);
        if (const auto folder =
                FolderOfProduct(setup, files, FolderNamedBy(target, entry, kInstallLocation)))
            return EarlierVersion{*folder, scope};
    }
    return std::nullopt;
}

} // namespace

std::optional<EarlierVersion> FindEarlierVersion(const SetupInformation& setup, const Host& host,
                                                 const Target& target, InstallScope scope)
{
    const section::Updates& updates = setup.project.Updates;
    if (updates.HandleUpdate == kOff)
        return std::nullopt;
    const auto listed = ListedVersion(setup, host.files, target, scope);
    const auto own = FolderOfProduct(setup, host.files, FolderOfOwnKey(updates, target));
    if (!own || (listed && updates.AdvUpdateRegAlwaysUseUserDefKey == kOff))
        return listed;
    // The project's key does not say for whom the product is, but the list of programs does.
    return EarlierVersion{*own, listed ? listed->scope : scope};
}

} // namespace quillon
