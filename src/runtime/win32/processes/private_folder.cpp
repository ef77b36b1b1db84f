#include "runtime/win32/processes/private_folder.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/win32/locked_folder.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"
#include "runtime/journal/rollback.h"
#include "runtime/work_folder.h"
#include "runtime/work_folders.h"

#include <windows.h>

namespace quillon {

Text MakePrivateFolder(Host& host)
{
    const Text parent = RemoveLastBackslash(host.machine.GetTempDir());
    host.files.DirCreate(parent);
    RemoveAbandonedWorkFolders(host.files, parent, [](const Text& path) {
        return (GetFileAttributesW(WidePath(path).c_str()) & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    });
    Text path;
    // Only a new folder is private, so another name is tried where one exists already.
    do {
        path = JoinPath(parent, WorkFolderName(host.machine.Random(1000000)));
        if (MakeLockedFolder(WidePath(path).c_str()))
            return path;
    } while (GetLastError() == ERROR_ALREADY_EXISTS);
    FailAsWindowsSays(path);
}

PrivateFolder::PrivateFolder(Host& host)
    : host_(host), path_(MakePrivateFolder(host)),
      lock_(host.files.Lock(WorkFolderLock(path_), LockWait::None))
{
    if (!lock_)
        FailAsWindowsSays(path_);
}

PrivateFolder::~PrivateFolder()
{
    lock_.reset();
    RunErrorNumber([&] {
        // A driver that hangs may hold one of them.
        for (const FolderEntry& entry : host_.files.List(path_))
            RunErrorNumber([&] { RemoveEvenReadOnly(host_.files, JoinPath(path_, entry.name)); });
        host_.files.RemoveFolder(path_);
    });
}

} // namespace quillon
