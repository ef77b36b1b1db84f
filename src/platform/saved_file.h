// How everything that the user owns is written to the disk: projects, settings, changed INI files.
//
// The new bytes go into a temporary file beside the old one, "name.tmp1" and so on, which is
// brought to the disk and then takes the old one's place in one step. Whatever happens on the way,
// a full disk, a kill, a power failure, leaves the old file whole. What a killed program left
// after is cleared by the next one that saves the same file; a temporary file in which another
// program is still writing is passed by.
#pragma once

#include "platform/file_system.h"

#include <string_view>

namespace quillon {

/// Failures name the file that is saved, never the temporary one.
class SavedFile : public OutputFile {
public:
    /// Throws as `FileSystem::OpenOutput` does.
    SavedFile(FileSystem& files, const Text& path);
    /// What was not committed is gone, and the old file as it was.
    ~SavedFile() override;
    SavedFile(const SavedFile&) = delete;
    SavedFile& operator=(const SavedFile&) = delete;

    void Write(std::span<const std::byte> bytes) override;
    void WriteAt(std::uint64_t position, std::span<const std::byte> bytes) override;
    std::uint64_t Position() const override { return output_->Position(); }
    void Flush() override;
    /// Brings the temporary file to the disk; it can be read then.
    void Close() override;
    /// Puts it, closed, in the place of the old file.
    void Commit();

    const Text& TemporaryPath() const { return temporary_; }

private:
    template <class Work>
    auto NamingTheFile(Work work) const;

    FileSystem& files_;
    Text path_;
    Text temporary_;
    std::unique_ptr<OutputFile> output_;
    bool committed_ = false;
};

/// A small file saved as one piece.
void SaveWholeFile(FileSystem& files, const Text& path, std::string_view bytes);

/// Keeps all others out who save the same file, by a lock file "name.lock" beside it. Nothing comes
/// back where another program has it; with `LockWait::UntilFree` there is always a lock.
std::unique_ptr<FileLock> LockSavedFile(FileSystem& files, const Text& path, LockWait wait);

/// Keeps the file under a free name beside it, "name.bak" or "name.bak2" and so on, which comes
/// back.
Text KeepBeside(FileSystem& files, const Text& path);

} // namespace quillon
