#include "runtime/pages/design_files.h"

#include "formats/package_files.h"
#include "helpers/windows_path.h"
#include "pictures/picture_file.h"
#include "platform/run_error.h"
#include "runtime/pages/standard_picture.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace quillon {

namespace {

class BytesInMemory : public InputFile {
public:
    explicit BytesInMemory(std::string bytes) : bytes_(std::move(bytes)) {}

    std::size_t Read(std::span<std::byte> buffer) override
    {
        const std::size_t count = std::min(buffer.size(), bytes_.size() - at_);
        std::memcpy(buffer.data(), bytes_.data() + at_, count);
        at_ += count;
        return count;
    }
    void Seek(std::uint64_t position) override
    {
        at_ = static_cast<std::size_t>(std::min<std::uint64_t>(position, bytes_.size()));
    }
    std::uint64_t Size() const override { return bytes_.size(); }

private:
    std::string bytes_;
    std::size_t at_ = 0;
};

[[noreturn]] void Refuse(const Text& path)
{
    throw RunError(ErrorNumber::kPermissionDenied, path);
}

/// The entries of an archive as files. A folder in front of a name means nothing: the package keeps
/// names alone.
class PackedFiles : public FileSystem {
public:
    PackedFiles(const FileSystem& files, OpenContainer openContainer, Text archive)
        : files_(files), openContainer_(std::move(openContainer)), archive_(std::move(archive))
    {
    }

    bool FileExists(const Text& path) const override { return Find(path) != nullptr; }
    bool DirExists(const Text&) const override { return false; }
    FileStatus Status(const Text& path) const override
    {
        FileStatus status;
        status.size = Existing(path).size;
        return status;
    }
    std::unique_ptr<InputFile> OpenInput(const Text& path) const override
    {
        const ZipEntry& entry = Existing(path);
        if (entry.size > kMaxPictureFileBytes)
            Refuse(path);
        std::string bytes;
        try {
            container_->Extract(entry, {}, [&](std::span<const std::byte> part) {
                bytes.append(reinterpret_cast<const char*>(part.data()), part.size());
            });
        } catch (const ZipError&) {
            throw RunError(ErrorNumber::kDeviceIo, path);
        }
        return std::make_unique<BytesInMemory>(std::move(bytes));
    }

    std::vector<FolderEntry> List(const Text& folder) const override { Refuse(folder); }
    std::unique_ptr<OutputFile> OpenOutput(const Text& path) override { Refuse(path); }
    bool DirCreate(const Text&) override { return false; }
    void CopyContent(const Text&, const Text& to) override { Refuse(to); }
    void RemoveFile(const Text& path) override { Refuse(path); }
    void RemoveFolder(const Text& path) override { Refuse(path); }
    void Rename(const Text&, const Text& to) override { Refuse(to); }
    void SetModified(const Text& path, const LocalTime&) override { Refuse(path); }
    void SetReadOnly(const Text& path, bool) override { Refuse(path); }
    std::uint64_t FreeSpace(const Text&) const override { return 0; }
    DriveKind DriveType(const Text&) const override { return DriveKind::Unknown; }
    Text GetVolumeName(const Text&) const override { return {}; }
    Text ShortPath(const Text& path) const override { return path; }

private:
    const ZipEntry* Find(const Text& path) const
    {
        Open();
        if (!container_)
            return nullptr;
        const Text name = ExtractFilename(path);
        for (const ZipEntry& entry : container_->Entries())
            if (EqualIgnoreCase(entry.name, name))
                return &entry;
        return nullptr;
    }
    const ZipEntry& Existing(const Text& path) const
    {
        const ZipEntry* const entry = Find(path);
        if (entry == nullptr)
            throw RunError(ErrorNumber::kFileNotFound, path);
        return *entry;
    }
    // Opened when the first file is asked for; a package without such files has no archive of them.
    void Open() const
    {
        if (std::exchange(isOpened_, true))
            return;
        try {
            container_ = openContainer_(files_.OpenInput(archive_));
        } catch (const RunError&) {
        } catch (const ZipError&) {
        }
    }

    const FileSystem& files_;
    OpenContainer openContainer_;
    Text archive_;
    mutable std::unique_ptr<Container> container_;
    mutable bool isOpened_ = false;
};

} // namespace

DesignFiles::DesignFiles(const FileSystem& files, OpenContainer openContainer,
                         const Text& packageFolder, Names names)
    : files_(&files)
{
    if (names == Names::AbsolutePaths)
        return;
    packed_ = std::make_unique<PackedFiles>(files, std::move(openContainer),
                                            JoinPath(packageFolder, kDesignContainerName));
    files_ = packed_.get();
}

DesignFiles::~DesignFiles() = default;

ScalablePicture DesignFiles::SidePicture(const Text& name) const
{
    if (name.empty())
        return StandardSidePicture();
    PictureResult result = ReadPictureFile(*files_, name);
    // A picture that can't be shown must not stop the page, so the standard one takes its place.
    return result.fault == PictureFault::None ? std::move(result.picture)
                                              : ScalablePicture(StandardSidePicture());
}

} // namespace quillon
