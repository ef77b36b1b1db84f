#include "runtime/old_shortcuts.h"

#include "helpers/windows_path.h"

namespace quillon {

namespace {

bool LeadsInto(const Text& folder, const std::optional<Shortcut>& shortcut)
{
    const Text inside = LowerCase(folder) + "\\";
    // A document is opened by a viewer, whose first argument it is.
    return shortcut && (LowerCase(shortcut->program).starts_with(inside) ||
                        LowerCase(shortcut->arguments).starts_with("\"" + inside));
}

} // namespace

std::vector<Text> OldShortcuts(const FileSystem& files, const Target& target,
                               const InstallJournal& record, const InstallPlan& plan)
{
    std::vector<Text> found;
    if (!files.DirExists(plan.programGroup))
        return found;
    for (const FolderEntry& entry : files.List(plan.programGroup)) {
        const Text path = JoinPath(plan.programGroup, entry.name);
        const bool isShortcut = !entry.status.isFolder && LowerCase(entry.name).ends_with(".lnk");
        if (isShortcut && (record.Has<record::File>(path) || record.Has<record::Replaced>(path) ||
                           LeadsInto(plan.mainFolder, target.ReadShortcut(path))))
            found.push_back(path);
    }
    return found;
}

} // namespace quillon
