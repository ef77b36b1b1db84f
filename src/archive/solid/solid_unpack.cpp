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
    if (file.name.find('/') != Text::npos)
        MakeFolder(path_.substr(0, path_.rfind('\\')));
    output_ = files_.OpenNew(path_);
    if (!output_)
        throw RunError(ErrorNumber::kPathFileAccess, path_);
    made_ += path_ + "\n";
}

// Where a folder can't be made, the first file that goes into it says so.
void FolderSink::MakeFolder(const Text& folder)
{
    if (!files_.DirExists(folder) && files_.DirCreate(folder))
        made_ += folder + "\n";
}

FolderSink::~FolderSink()
{
    output_.reset();
    while (!made_.empty()) {
        made_.pop_back();
        const std::size_t begin = made_.rfind('\n') + 1; // 0 for the first line
        const Text path = made_.substr(begin);
        made_.resize(begin);
        RunErrorNumber([&] {
            if (files_.DirExists(path))
                return files_.RemoveFolder(path);
            files_.SetReadOnly(path, false);
            files_.RemoveFile(path);
        });
    }
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
