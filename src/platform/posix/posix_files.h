// The file system of a POSIX machine under drive letters.
#pragma once

#include "platform/file_system.h"
#include "platform/posix/drive_map.h"

namespace quillon {

class PosixFiles : public FileSystem {
public:
    explicit PosixFiles(const DriveMap& drives) : drives_(drives) {}

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
    void LinkOrCopy(const Text& path, const Text& second) override;
    Text RealPath(const Text& path) const override;
    void SetModified(const Text& path, const LocalTime& time) override;
    void SetReadOnly(const Text& path, bool readOnly) override;

    std::uint64_t FreeSpace(const Text& folder) const override;
    /// Bytes of the disk that holds the folder; nothing where it can't be asked.
    std::optional<std::uint64_t> SizeOf(const Text& folder) const;
    DriveKind DriveType(const Text& root) const override;
    Text GetVolumeName(const Text& root) const override;
    /// There are no short names here: the path as it is.
    Text ShortPath(const Text& path) const override { return path; }

private:
    const DriveMap& drives_;
};

} // namespace quillon
