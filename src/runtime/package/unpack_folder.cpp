#include "runtime/package/unpack_folder.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/work_folder.h"

namespace quillon {

namespace {

constexpr unsigned kMaxTries = 1000;

} // namespace

UnpackFolder::UnpackFolder(FileSystem& files, FolderGuard& guard, const Text& base)
    : files_(files), guard_(guard)
{
    for (unsigned i = 0; i < kMaxTries; ++i)
        if (TakeBase(i == 0 ? base : base + "." + NumberText(static_cast<Long>(i))))
            return;
    throw RunError(ErrorNumber::kPathFileAccess, base);
}

// The folder above is checked while a lock below it is held, which keeps it from being replaced by
// a link.
bool UnpackFolder::TakeBase(const Text& base)
{
    if (!files_.DirExists(base) && !files_.DirCreate(base))
        return false;
    base_ = base;
    for (unsigned i = 0; i < kMaxTries && !guard_.IsLink(base); ++i) {
        if (!TakeFolder())
            continue;
        if (!guard_.IsLink(base)) {
            RemoveLeftOvers();
            return true;
        }
        lock_.reset();
        RunErrorNumber([&] { files_.RemoveFolder(path_); });
    }
    return false;
}

bool UnpackFolder::TakeFolder()
{
    path_ = JoinPath(base_, WorkFolderName(static_cast<Long>(guard_.Number())));
    if (!guard_.MakeClosed(path_))
        return false;
    // Another run may have removed it at the same time.
    RunErrorNumber([&] { lock_ = files_.Lock(JoinPath(path_, kWorkFolderLock), LockWait::None); });
    return lock_ != nullptr;
}

void UnpackFolder::RemoveLeftOvers()
{
    std::vector<FolderEntry> entries;
    RunErrorNumber([&] { entries = files_.List(base_); });
    for (const FolderEntry& entry : entries) {
        const Text folder = JoinPath(base_, entry.name);
        if (!entry.status.isFolder || !IsWorkFolderName(entry.name) || guard_.IsLink(folder) ||
            !guard_.HaveSameOwner(folder, path_))
            continue;
        RunErrorNumber([&] {
            auto lock = files_.Lock(JoinPath(folder, kWorkFolderLock), LockWait::None);
            if (!lock)
                return;
            RemoveAll(folder);
            lock.reset();
            files_.RemoveFolder(folder);
        });
    }
}

// The lock's file is removed with the lock.
void UnpackFolder::RemoveAll(const Text& folder) const
{
    for (const FolderEntry& entry : files_.List(folder)) {
        const Text path = JoinPath(folder, entry.name);
        RunErrorNumber([&] {
            if (entry.status.isFolder) {
                if (!guard_.IsLink(path))
                    RemoveAll(path);
                files_.RemoveFolder(path);
                return;
            }
            if (entry.status.isReadOnly)
                files_.SetReadOnly(path, false);
            files_.RemoveFile(path);
        });
    }
}

UnpackFolder::~UnpackFolder()
{
    RunErrorNumber([&] { RemoveAll(path_); });
    lock_.reset();
    RunErrorNumber([&] { files_.RemoveFolder(path_); });
    RunErrorNumber([&] { files_.RemoveFolder(base_); });
}

} // namespace quillon
