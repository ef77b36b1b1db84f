// The file system of a Windows machine.
#pragma once

#include "platform/file_system.h"

namespace quillon {

class WinFiles : public FileSystem {
public:
    bool FileExists(const Text& path) const override;
    bool DirExists(const Text& path) const override;
    FileStatus Status(const Text& path) const override;
    std::vector<FolderEntry> List(const Text& folder) const override;

    std::unique_ptr<InputFile> OpenInput(const Text& path) const override;
    std::unique_ptr<OutputFile> OpenOutput(const Text& path) override;
    std::unique_ptr<OutputFile> OpenNew(const Text& path) override;
    void RemoveAbandoned(const Text& path) override;
    std::unique_ptr<FileLock> Lock(const Text& path, LockWait wait) override;

    bool DirCreate(const Text& path) override;
    void CopyContent(const Text& from, const Text& to) override;
    void RemoveFile(const Text& path) override;
    void RemoveFolder(const Text& path) override;
    void Rename(const Text& from, const Text& to) override;
    void Replace(const Text& from, const Text& to) override;
    void SetModified(const Text& path, const LocalTime& time) override;
    void SetReadOnly(const Text& path, bool readOnly) override;

    std::uint64_t FreeSpace(const Text& folder) const override;
    DriveKind DriveType(const Text& root) const override;
    Text GetVolumeName(const Text& root) const override;
    Text ShortPath(const Text& path) const override;
};

} // namespace quillon
