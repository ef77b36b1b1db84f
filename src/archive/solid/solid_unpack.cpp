#include "archive/solid/solid_unpack.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"

namespace quillon {

FolderSink::FolderSink(FileSystem& files, Text folder, Progress onProgress)
    : files_(files), folder_(std::move(folder)), onProgress_(std::move(onProgress))
{
}

void FolderSink::Begin(const SolidFile& file)
{
    file_ = &file;
    path_ = JoinPath(folder_, ReplaceAll(file.name, "/", "\\"));
    if (file.name.find('/') != Text::npos && !files_.DirCreate(ExtractDirectory(path_)))
        throw RunError(ErrorNumber::kPathFileAccess, ExtractDirectory(path_));
    output_ = files_.OpenNew(path_);
    if (!output_)
        throw RunError(ErrorNumber::kPathFileAccess, path_);
}

void FolderSink::Write(std::span<const std::byte> bytes)
{
    output_->Write(bytes);
    done_ += bytes.size();
    if (onProgress_)
        onProgress_(done_);
}

void FolderSink::End()
{
    output_->Close();
    output_.reset();
    if (file_->modified)
        files_.SetModified(path_, *file_->modified);
    if ((file_->attributes & SolidAttribute::kReadOnly) != 0)
        files_.SetReadOnly(path_, true);
}

} // namespace quillon
