#include "runtime/install/trusted_folders.h"

#include "helpers/windows_path.h"

#include <set>

namespace quillon {

namespace {

using Paths = std::set<Text>; // in lower case

Paths FoldersOfSystem(const SetupInput& input)
{
    Paths paths;
    const Machine& machine = input.host.machine;
    for (const Text& folder :
         {machine.GetWindowsDir(), machine.GetSystemDir(), machine.GetProgramFilesDir(),
          input.target.Folder(TargetFolder::CommonFiles), input.target.Folder(TargetFolder::Fonts)})
        paths.insert(LowerCase(folder));
    return paths;
}

// `passed` holds the folders that need no check, and takes those that have had theirs.
void CheckWayTo(const SetupCheck& check, const Text& folder, Paths& passed)
{
    const FileSystem& files = check.input.host.files;
    if (folder[1] != ':' || files.DriveType(folder.substr(0, 3)) != DriveKind::Fixed)
        return;
    Text at = folder;
    for (Text above = ExtractDirectory(at);
         above != at && !at.empty() && passed.insert(LowerCase(at)).second;
         at = above, above = ExtractDirectory(at))
        if (files.DirExists(at) && !check.input.target.IsOfTrustedUser(at))
            throw SetupFailure(ExitCode::Failed, check.package.texts(Message::FolderOfOthers, at));
}

} // namespace

void CheckFolder(const SetupCheck& check, const Text& folder)
{
    Paths passed;
    CheckWayTo(check, folder, passed);
}

std::vector<Text> FoldersOfParts(const InstallPlan& plan)
{
    const Text mainFolder = LowerCase(plan.mainFolder) + "\\";
    std::vector<Text> folders;
    Paths seen;
    const auto add = [&](const Text& folder) {
        const Text key = LowerCase(folder);
        if (!(key + "\\").starts_with(mainFolder) && seen.insert(key).second)
            folders.push_back(folder);
    };
    for (const PlannedFile& file : plan.files)
        add(ExtractDirectory(file.path));
    for (const Text& folder : plan.folders)
        add(folder);
    for (const PlannedShortcut& shortcut : plan.shortcuts)
        add(ExtractDirectory(shortcut.path));
    for (const IniLine& line : plan.ini)
        add(ExtractDirectory(line.file));
    return folders;
}

void CheckFoldersOfParts(const SetupCheck& check, const InstallPlan& plan)
{
    Paths passed = FoldersOfSystem(check.input);
    for (const Text& folder : FoldersOfParts(plan))
        CheckWayTo(check, folder, passed);
}

} // namespace quillon
