// The files of a solid payload, written into a folder.
#pragma once

#include "archive/solid/solid_reader.h"

namespace quillon {

/// Writes each file as a new one, with its folders, time and read-only mark; bytes are counted by
/// `onProgress`. Throws `RunError`: 75 (path/file access) where a file is there already. What was
/// made goes with the sink, as far as it can be removed, unless it is kept.
class FolderSink : public SolidSink {
public:
    using Progress = std::function<void(std::uint64_t done)>;

    FolderSink(FileSystem& files, Text folder, Progress onProgress = {});
    ~FolderSink();
    FolderSink(const FolderSink&) = delete;
    FolderSink& operator=(const FolderSink&) = delete;

    /// The folder itself, where it is missing.
    void MakeFolder() { MakeFolder(folder_); }
    /// All that was made until now stays.
    void Keep() { made_.clear(); }

    void Begin(const SolidFile& file) override;
    void Write(std::span<const std::byte> bytes) override;
    void End() override;

private:
    void MakeFolder(const Text& folder);

    FileSystem& files_;
    Text folder_;
    Progress onProgress_;
    std::uint64_t done_ = 0;
    const SolidFile* file_ = nullptr;
    Text path_;
    std::unique_ptr<OutputFile> output_;
    Text made_; // the paths of what it has made, a line each; a folder before what is in it
};

} // namespace quillon
