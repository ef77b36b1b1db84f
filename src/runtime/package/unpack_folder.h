// The folder that a self-extracting program unpacks to for one run. Existing folders are not
// trusted, since others may have made them. So each run makes a new folder, closed to others, and
// holds a lock in it, which also keeps the folders above it from being moved or exchanged.
#pragma once

#include "platform/file_system.h"

namespace quillon {

/// The calls of the system that this needs.
class FolderGuard {
public:
    /// Makes a folder that no other user may write to; false where the name is taken. Throws
    /// `RunError` where none can be made.
    virtual bool MakeClosed(const Text& path) = 0;
    /// Whether the path is a link.
    virtual bool IsLink(const Text& path) const = 0;
    /// Whether both belong to one user. What an administrator has made belongs to administrators,
    /// and no other user can give them anything.
    virtual bool HaveSameOwner(const Text& path, const Text& other) const = 0;
    /// A number that no other run has at the same time.
    virtual unsigned Number() = 0;

protected:
    ~FolderGuard() = default; // never deleted through this class
};

class UnpackFolder {
public:
    /// Below `base`, which is made where it is missing, or below another one beside it where it is
    /// none to be trusted. Folders of killed runs of the same user are removed. Throws `RunError`.
    UnpackFolder(FileSystem& files, FolderGuard& guard, const Text& base);
    /// Removes the folder with all that is in it, and `base` where nothing else is there.
    ~UnpackFolder();
    UnpackFolder(const UnpackFolder&) = delete;
    UnpackFolder& operator=(const UnpackFolder&) = delete;

    const Text& Path() const { return path_; }

private:
    bool TakeBase(const Text& base);
    bool TakeFolder();
    void RemoveLeftOvers();
    void RemoveAll(const Text& folder) const;

    FileSystem& files_;
    FolderGuard& guard_;
    Text base_;
    Text path_;
    std::unique_ptr<FileLock> lock_;
};

} // namespace quillon
