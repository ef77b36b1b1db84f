#include "runtime/pages/earlier_version.h"

#include "helpers/windows_path.h"
#include "platform/registry_roots.h"
#include "runtime/switches.h"
#include "runtime/uninstall_entry.h"

namespace quillon {

namespace {

std::optional<Text> FolderNamedBy(const Target& target, const RegistryKey& key, const Text& value)
{
    const auto data = target.ReadValue(key, value);
    const auto text = data ? TextOf(*data) : std::nullopt;
    if (!text)
        return std::nullopt;
    // Programs also write down their own path, often in quotation marks.
    const Text path = RemoveLastBackslash(TrimBlanks(ReplaceAll(*text, "\"", "")));
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

bool HoldsTheProduct(const FileSystem& files, const Text& folder, const Text& referenceFile)
{
    return referenceFile.empty() ? files.DirExists(folder)
                                 : files.FileExists(JoinPath(folder, referenceFile));
}

} // namespace

std::optional<Text> EarlierVersionFolder(const SetupInformation& setup, const Host& host,
                                         const Target& target, InstallScope scope)
{
    const section::Updates& updates = setup.project.Updates;
    if (updates.HandleUpdate == kOff)
        return std::nullopt;
    const auto usual = FolderNamedBy(
        target, UninstallEntryKey(setup.project.ProjectName.ProjectName, scope), "InstallLocation");
    const auto own = FolderOfOwnKey(updates, target);
    const bool ownFirst = updates.AdvUpdateRegAlwaysUseUserDefKey != kOff;
    for (const auto& found : {ownFirst ? own : usual, ownFirst ? usual : own})
        if (found) {
            const Text folder = FolderItself(host.files, *found);
            if (HoldsTheProduct(host.files, folder, updates.UpdateReferenceFile))
                return folder;
        }
    return std::nullopt;
}

} // namespace quillon
