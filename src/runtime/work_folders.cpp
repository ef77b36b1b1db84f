#include "runtime/work_folders.h"

#include "formats/package_files.h"
#include "formats/runtime_programs.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/install/first_program.h"
#include "runtime/journal/rollback.h"
#include "runtime/pages/background_sound.h"
#include "runtime/script/script_run.h"
#include "runtime/work_folder.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr const char* kFilesOfASetup[] = {RuntimePrograms::kSetup.name,
                                          RuntimePrograms::kSetup.inPackage,
                                          RuntimePrograms::kUninstaller.name,
                                          RuntimePrograms::kUnzipLibrary.inPackage,
                                          RuntimePrograms::kRegistryHelper.inPackage,
                                          RuntimePrograms::kSecondRegistryHelper.inPackage,
                                          RuntimePrograms::kUninstaller.inPackage,
                                          RuntimePrograms::kMovedUninstaller,
                                          kFileContainerName,
                                          kFirstProgram,
                                          kDataAccessProgram};

void RemoveWorkFolder(FileSystem& files, const Text& folder)
{
    auto lock = files.Lock(WorkFolderLock(folder), LockWait::None);
    if (!lock)
        return;
    for (const char* name : kFilesOfASetup)
        if (const Text path = JoinPath(folder, name); files.FileExists(path))
            RemoveEvenReadOnly(files, path);
    for (const SoundKind& kind : kSoundKinds)
        if (const Text path = JoinPath(folder, kind.name); files.FileExists(path))
            RemoveEvenReadOnly(files, path);
    for (const char* name : kScriptPrograms)
        if (const Text path = JoinPath(folder, name); files.FileExists(path))
            RemoveEvenReadOnly(files, path);
    lock.reset();
    files.RemoveFolder(folder);
}

} // namespace

Text WorkFolderLock(const Text& folder)
{
    return JoinPath(folder, kWorkFolderLock);
}

void RemoveAbandonedWorkFolders(FileSystem& files, const Text& tempFolder,
                                const std::function<bool(const Text&)>& isLink)
{
    if (!files.DirExists(tempFolder))
        return;
    for (const FolderEntry& entry : files.List(tempFolder)) {
        const Text folder = JoinPath(tempFolder, entry.name);
        if (!entry.status.isFolder || !IsWorkFolderName(UpperCase(entry.name)) || isLink(folder))
            continue;
        // Another user's folder, or one that holds more files, stays.
        RunErrorNumber([&] { RemoveWorkFolder(files, folder); });
    }
}

} // namespace quillon
