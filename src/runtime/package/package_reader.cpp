#include "runtime/package/package_reader.h"

#include "formats/package.h"
#include "formats/served_rows.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "project/file_list.h"
#include "runtime/texts/failure_reason.h"

#include <utility>

namespace quillon {

namespace {

constexpr std::size_t kPieceSize = 64 * 1024;

void CopyAll(InputFile& from, const ZipReader::Sink& sink)
{
    std::vector<std::byte> piece(kPieceSize);
    for (std::size_t got = from.Read(piece); got > 0; got = from.Read(piece))
        sink(std::span(piece).first(got));
}

} // namespace

bool IsEmptyFolderRow(const InstallRow& row)
{
    return row.name == kEmptyFolderName;
}

PackageReader::PackageReader(const PackageInput& input, std::unique_ptr<InputFile> archive)
    : input_(input), archive_(std::move(archive))
{
    if (UsesContainer(input_.setup))
        FindInContainerOrRefuse();
    else
        FindByThemselves();
    for (const InstallRow& row : input_.rows)
        if (!IsEmptyFolderRow(row) && !HasBytes(row) && !MayLackSource(row))
            throw DamagedPackage(input_.texts, {Message::PackageFileMissing, row.name});
}

PackageReader::~PackageReader()
{
    container_.reset();
    if (!joinedFile_.empty())
        RunErrorNumber([&] { input_.host.files.RemoveFile(joinedFile_); });
}

// Nothing has been changed yet, so a missing file is a fault of the package.
void PackageReader::FindInContainerOrRefuse()
{
    try {
        FindInContainer();
    } catch (const RunError& error) {
        if (error.Number() != ErrorNumber::kFileNotFound &&
            error.Number() != ErrorNumber::kPathNotFound)
            throw;
        throw DamagedPackage(input_.texts,
                             {Message::PackageFileMissing, ExtractFilename(error.Path())});
    }
}

void PackageReader::FindInContainer()
{
    bool hasFiles = false;
    for (const InstallRow& row : input_.rows)
        hasFiles = hasFiles || !IsEmptyFolderRow(row);
    if (!hasFiles)
        return;
    container_ = input_.openContainer(Archive());
    for (const ZipEntry& entry : container_->Entries())
        for (const ServedRow& row : ServedRows(entry.comment)) {
            entries_[row.number] = &entry;
            dates_.erase(row.number);
            if (row.modified)
                dates_[row.number] = *row.modified;
        }
}

std::unique_ptr<InputFile> PackageReader::Archive()
{
    return archive_ ? std::move(archive_) : input_.host.files.OpenInput(ContainerPath());
}

Text PackageReader::ContainerPath()
{
    const int disks = input_.setup.Floppies;
    if (input_.setup.project.Media.TargetMedia == int(Medium::Floppy) && disks > 1)
        return JoinDisks(disks);
    const Text path = JoinPath(input_.packageFolder, kFileContainerName);
    if (!input_.host.files.FileExists(path))
        throw DamagedPackage(input_.texts, {Message::PackageFileMissing, kFileContainerName});
    return path;
}

// The pieces of all disks become one file first, since an archive is read from its end.
Text PackageReader::JoinDisks(int disks)
{
    joinedFile_ = JoinPath(input_.workFolder, kFileContainerName);
    const auto joined = input_.host.files.OpenOutput(joinedFile_);
    for (int disk = 1; disk <= disks; ++disk)
        AppendDisk(disk, *joined);
    joined->Close();
    return joinedFile_;
}

void PackageReader::AppendDisk(int disk, OutputFile& joined)
{
    FileSystem& files = input_.host.files;
    const Text ownFolder = DiskFolder(input_.packageFolder, disk);
    const bool hasOwnFolder = disk > 1 && files.DirExists(ownFolder);
    const Text piece =
        JoinPath(hasOwnFolder ? ownFolder : input_.packageFolder, kFileContainerName);
    if (disk > 1 && !hasOwnFolder) {
        const Text ask = input_.texts(Message::InsertDisk, NumberText(disk));
        if (input_.silent)
            throw DamagedPackage(input_.texts, {Message::PackageFileMissing, ownFolder});
        do {
            if (!input_.ask.OkCancel(input_.setup.project.ProjectName.ProjectName, ask))
                throw SetupFailure(ExitCode::Cancelled, {});
        } while (!files.FileExists(piece));
    }
    input_.log.Line(Message::LogReads, piece);
    if (!files.FileExists(piece))
        throw DamagedPackage(input_.texts, {Message::PackageFileMissing, PieceName(disk)});
    Sha256 hash;
    CopyAll(*files.OpenInput(piece), [&](auto bytes) {
        hash.Add(bytes);
        joined.Write(bytes);
    });
    CheckPiece(disk, hash.Finish());
}

bool PackageReader::HasManifest() const
{
    return input_.manifest != nullptr && input_.manifest->state == PackageManifest::State::Whole;
}

void PackageReader::CheckPiece(int disk, const Sha256Digest& digest) const
{
    if (!HasManifest())
        return;
    for (const ManifestLine& line : input_.manifest->lines)
        if (EqualIgnoreCase(line.name, PieceName(disk)) && line.digest == digest)
            return;
    throw DamagedPackage(input_.texts, {Message::PackageFileDamaged, PieceName(disk)});
}

void PackageReader::FindByThemselves()
{
    for (const InstallRow& row : input_.rows)
        if (!IsEmptyFolderRow(row) && input_.host.files.FileExists(PathOf(row)))
            entries_[row.number] = nullptr;
    if (HasManifest())
        for (const ManifestLine& line : input_.manifest->lines)
            digests_[LowerCase(line.name)] = &line.digest;
}

bool PackageReader::HasBytes(const InstallRow& row) const
{
    return entries_.contains(row.number);
}

// For a file outside the archives.
Text PackageReader::PathOf(const InstallRow& row) const
{
    return LooseFilePath(input_.packageFolder, input_.setup, row);
}

void PackageReader::CheckEverything()
{
    for (const InstallRow& row : input_.rows) {
        if (!HasBytes(row))
            continue;
        const ZipEntry* const entry = entries_.at(row.number);
        const std::uint64_t size = entry ? entry->size : input_.host.files.Status(PathOf(row)).size;
        if (size != row.size)
            throw DamagedPackage(input_.texts, {Message::PackageFileSize, row.name});
    }
    if (!container_ || HasManifest())
        return;
    std::uint64_t total = 0;
    for (const ZipEntry& entry : container_->Entries())
        total += entry.size;
    std::uint64_t done = 0;
    for (const ZipEntry& entry : container_->Entries())
        container_->Extract(entry, input_.password, [&](std::span<const std::byte> bytes) {
            done += bytes.size();
            input_.ask.ShowProgress(done, total);
            input_.ask.ProcessEvents();
        });
}

std::uint64_t PackageReader::Position(const InstallRow& row) const
{
    const auto place = entries_.find(row.number);
    const ZipEntry* const entry = place == entries_.end() ? nullptr : place->second;
    return entry && entry->isSolid ? entry->headerPosition : 0;
}

LocalTime PackageReader::Modified(const InstallRow& row) const
{
    if (const auto date = dates_.find(row.number); date != dates_.end())
        return date->second;
    const ZipEntry* const entry = entries_.at(row.number);
    return entry ? entry->modified : input_.host.files.Status(PathOf(row)).modified;
}

void PackageReader::CheckDigest(const InstallRow& row, const Sha256Digest& digest) const
{
    if (entries_.at(row.number) != nullptr)
        return;
    const auto listed = digests_.find(LowerCase(LooseFileName(input_.setup, row)));
    if (listed != digests_.end() && *listed->second != digest)
        throw DamagedPackage(input_.texts, {Message::PackageFileDamaged, row.name});
}

void PackageReader::Extract(const InstallRow& row, const ZipReader::Sink& sink) const
{
    const ZipEntry* const entry = entries_.at(row.number);
    if (entry)
        container_->Extract(*entry, input_.password, sink);
    else
        CopyAll(*input_.host.files.OpenInput(PathOf(row)), sink);
}

} // namespace quillon
