#include "builder/selfextract/payload_sources.h"

#include "archive/solid/signature_fields.h"
#include "archive/solid/writer/x86_program.h"
#include "archive/zip_directory.h"
#include "formats/package_files.h"
#include "formats/package_manifest.h"
#include "platform/run_error.h"

#include <algorithm>

namespace quillon {

namespace {

/// A part of a file, as a file.
class FilePart : public InputFile {
public:
    FilePart(std::unique_ptr<InputFile> file, std::uint64_t begin, std::uint64_t size)
        : file_(std::move(file)), begin_(begin), size_(size)
    {
    }

    std::size_t Read(std::span<std::byte> buffer) override
    {
        const auto count =
            static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), size_ - position_));
        file_->Seek(begin_ + position_);
        const std::size_t got = file_->Read(buffer.first(count));
        position_ += got;
        return got;
    }
    void Seek(std::uint64_t position) override { position_ = std::min(position, size_); }
    std::uint64_t Size() const override { return size_; }

private:
    std::unique_ptr<InputFile> file_;
    std::uint64_t begin_;
    std::uint64_t size_;
    std::uint64_t position_ = 0;
};

std::uint64_t DataPosition(InputFile& archive, const ZipEntry& entry)
{
    zip::Bytes bytes(zip::kRecordSize<zip::LocalHeader>);
    zip::ReadExactly(archive, entry.headerPosition, bytes);
    const auto header = zip::ReadRecord<zip::LocalHeader>(bytes);
    if (!header)
        zip::RefuseArchive("en post saknar sin början");
    return entry.headerPosition + bytes.size() + header->nameLength + header->extraLength;
}

bool IsX86ProgramAt(InputFile& file, std::uint64_t position, std::uint64_t size)
{
    zip::Bytes headers(
        static_cast<std::size_t>(std::min<std::uint64_t>(size, kProgramHeadersSize)));
    zip::ReadExactly(file, position, headers);
    return IsX86Program(headers);
}

void AddRun(std::vector<SolidRun>& runs, std::uint64_t size, SolidFilter filter)
{
    if (size == 0)
        return;
    if (!runs.empty() && runs.back().filter == filter && filter == SolidFilter::None)
        runs.back().size += size;
    else
        runs.push_back({size, filter});
}

// The programs in a container, each as a part of it.
std::vector<SolidRun> RunsOfContainer(InputFile& container)
{
    std::vector<ZipEntry> entries = zip::ReadDirectory(container).entries;
    std::ranges::sort(entries, {}, &ZipEntry::headerPosition);
    std::vector<SolidRun> runs;
    std::uint64_t done = 0;
    for (const ZipEntry& entry : entries) {
        if (!entry.isStored || entry.isEncrypted || entry.size == 0)
            continue;
        const std::uint64_t data = DataPosition(container, entry);
        // Two entries may share their bytes.
        if (data < done || !IsX86ProgramAt(container, data, entry.size))
            continue;
        AddRun(runs, data - done, SolidFilter::None);
        AddRun(runs, entry.size, SolidFilter::X86);
        done = data + entry.size;
    }
    AddRun(runs, container.Size() - done, SolidFilter::None);
    return runs;
}

bool IsContainer(const Text& name)
{
    return EqualIgnoreCase(name, kFileContainerName) || EqualIgnoreCase(name, kDesignContainerName);
}

// Its time would be that of the run, but the same input has to give the same bytes.
bool IsWrittenByCreate(const Text& name)
{
    for (const char* made : {kFileListName, kSetupInformationName, kFileContainerName,
                             kDesignContainerName, kManifestName, kAutorunName})
        if (EqualIgnoreCase(name, made))
            return true;
    return false;
}

std::vector<SolidRun> RunsOf(const FileSystem& files, const Text& archive, const Text& name,
                             std::uint64_t data, std::uint64_t size)
{
    if (size == 0)
        return {};
    FilePart part(files.OpenInput(archive), data, size);
    if (IsContainer(name))
        return RunsOfContainer(part);
    return {{size, IsX86ProgramAt(part, 0, size) ? SolidFilter::X86 : SolidFilter::None}};
}

Text Kind(const Text& name)
{
    const std::size_t dot = name.rfind('.');
    return dot == Text::npos ? Text() : LowerCase(name.substr(dot + 1));
}

Text NameInFolder(const Text& name)
{
    return LowerCase(name.substr(name.find_last_of("/\\") + 1));
}

} // namespace

bool PacksBefore(const Text& left, const Text& right)
{
    const Text leftName = NameInFolder(left);
    const Text rightName = NameInFolder(right);
    return std::tuple(Kind(leftName), leftName, LowerCase(left)) <
           std::tuple(Kind(rightName), rightName, LowerCase(right));
}

std::vector<SolidSource> PayloadSources(const FileSystem& files, const Text& archive)
{
    const auto input = files.OpenInput(archive);
    std::vector<SolidSource> sources;
    for (const ZipEntry& entry : zip::ReadDirectory(*input).entries) {
        if (!entry.isStored || entry.isEncrypted)
            throw RunError(ErrorNumber::kDeviceIo, archive);
        const std::uint64_t data = DataPosition(*input, entry);
        SolidSource source;
        source.file.name = entry.name;
        source.file.size = entry.size;
        source.file.attributes = SolidAttribute::kArchive;
        source.file.runs = RunsOf(files, archive, entry.name, data, entry.size);
        source.open = [&files, archive, data, size = entry.size] {
            return std::make_unique<FilePart>(files.OpenInput(archive), data, size);
        };
        if (!IsWrittenByCreate(entry.name))
            source.file.modified = entry.modified;
        sources.push_back(std::move(source));
    }
    std::ranges::sort(sources, [](const SolidSource& left, const SolidSource& right) {
        return PacksBefore(left.file.name, right.file.name);
    });
    return sources;
}

} // namespace quillon
