#include "runtime/install/old_shortcuts.h"

#include "helpers/windows_path.h"

namespace quillon {

bool LeadsInto(const Text& folder, const Shortcut& shortcut)
{
    const Text inside = LowerCase(folder) + "\\";
    // A document is the first argument of its viewer.
    return LowerCase(shortcut.program).starts_with(inside) ||
           LowerCase(shortcut.arguments).starts_with("\"" + inside);
}

bool IsShortcut(const Text& path)
{
    return LowerCase(path).ends_with(".lnk");
}

std::vector<Text> OldShortcuts(const FileSystem& files, const Target& target,
                               const InstallJournal& journal, const InstallPlan& plan)
{
    std::vector<Text> found;
    if (!files.DirExists(plan.programGroup))
        return found;
    for (const FolderEntry& entry : files.List(plan.programGroup)) {
        const Text path = JoinPath(plan.programGroup, entry.name);
        if (entry.status.isFolder || !IsShortcut(path))
            continue;
        const bool isRecorded =
            journal.Has<record::File>(path) || journal.Has<record::Replaced>(path);
        const auto shortcut = isRecorded ? std::nullopt : target.ReadShortcut(path);
        if (isRecorded || (shortcut && LeadsInto(plan.mainFolder, *shortcut)))
            found.push_back(path);
    }
    return found;
}

} // namespace quillon
