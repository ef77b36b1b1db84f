#include "platform/saved_file.h"

#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::string_view kTemporaryMark = ".tmp";

bool IsTemporaryOf(const Text& name, std::string_view fileName)
{
    const std::size_t marked = fileName.size() + kTemporaryMark.size();
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return name.size() > marked && EqualIgnoreCase(name.substr(0, fileName.size()), fileName) &&
           name.compare(fileName.size(), kTemporaryMark.size(), kTemporaryMark) == 0 &&
           std::all_of(name.begin() + static_cast<std::ptrdiff_t>(marked), name.end(), isDigit);
}

void ClearLeftOvers(FileSystem& files, const Text& path)
{
    const Text folder = ExtractDirectory(path);
    const Text fileName = ExtractFilename(path);
    try {
        for (const FolderEntry& entry : files.List(folder))
            if (!entry.status.isFolder && IsTemporaryOf(entry.name, fileName))
                files.RemoveAbandoned(JoinPath(folder, entry.name));
    } catch (const RunError&) {
        // A folder that can't be listed can still take a file.
    }
}

} // namespace

template <class Work>
auto SavedFile::NamingTheFile(Work work) const
{
    try {
        return work();
    } catch (const RunError& error) {
        throw RunError(error.Number(), path_);
    }
}

SavedFile::SavedFile(FileSystem& files, const Text& path) : files_(files), path_(path)
{
    if (files.DirExists(path))
        throw RunError(ErrorNumber::kPathFileAccess, path);
    const Text real = files.RealPath(path);
    ClearLeftOvers(files, real);
    for (int number = 1; !output_; ++number) {
        temporary_ = real + Text(kTemporaryMark) + NumberText(number);
        output_ = NamingTheFile([&] { return files.OpenNew(temporary_); });
    }
}

SavedFile::~SavedFile()
{
    if (!committed_)
        RunErrorNumber([this] { files_.RemoveFile(temporary_); });
}

void SavedFile::Write(std::span<const std::byte> bytes)
{
    NamingTheFile([&] { output_->Write(bytes); });
}

void SavedFile::WriteAt(std::uint64_t position, std::span<const std::byte> bytes)
{
    NamingTheFile([&] { output_->WriteAt(position, bytes); });
}

void SavedFile::Flush()
{
    NamingTheFile([&] { output_->Flush(); });
}

void SavedFile::Close()
{
    NamingTheFile([&] {
        output_->Flush();
        output_->Close();
    });
}

void SavedFile::Commit()
{
    NamingTheFile([&] { files_.Replace(temporary_, path_); });
    committed_ = true;
}

void SaveWholeFile(FileSystem& files, const Text& path, std::string_view bytes)
{
    SavedFile file(files, path);
    file.Write(std::as_bytes(std::span(bytes)));
    file.Close();
    file.Commit();
}

std::unique_ptr<FileLock> LockSavedFile(FileSystem& files, const Text& path, LockWait wait)
{
    try {
        return files.Lock(files.RealPath(path) + ".lock", wait);
    } catch (const RunError& error) {
        throw RunError(error.Number(), path);
    }
}

Text KeepBeside(FileSystem& files, const Text& path)
{
    const Text real = files.RealPath(path);
    Text kept = real + ".bak";
    for (int number = 2; files.FileExists(kept) || files.DirExists(kept); ++number)
        kept = real + ".bak" + NumberText(number);
    files.LinkOrCopy(real, kept);
    return kept;
}

} // namespace quillon
