// The folder that a self-extracting program unpacks to for the length of one run. What stands there
// already is not trusted: whoever could write beside it may have laid it out. So each run has a
// fresh folder of its own, closed to others, and holds a lock in it, which also keeps the folders
// above it from being moved away or exchanged.
#pragma once

#include "platform/file_system.h"

namespace quillon {

/// What only the system itself can say and do.
class FolderGuard {
public:
    /// Makes a folder that nobody else may write to; false where something has the name already.
    /// Throws `RunError` where none can be made.
    virtual bool MakeClosed(const Text& path) = 0;
    /// Whether the path leads elsewhere.
    virtual bool IsLink(const Text& path) const = 0;
    /// Whether both belong to one user. What an administrator has made belongs to administrators,
    /// and nobody else can give them anything.
    virtual bool HaveSameOwner(const Text& path, const Text& other) const = 0;
    /// A number that no other run has at the same time.
    virtual unsigned Number() = 0;

protected:
    ~FolderGuard() = default; // nobody owns one by this class
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
