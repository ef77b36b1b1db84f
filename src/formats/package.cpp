#include "formats/package.h"

#include "archive/joined_input.h"
#include "archive/solid/package_container.h"
#include "formats/row_safety.h"
#include "formats/served_rows.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "project/file_list.h"

#include <algorithm>
#include <map>

namespace quillon {

namespace {

Text FailureText(const RunError& error)
{
    return "Fel #" + NumberText(error.Number());
}

// The bytes of one of the package's INF files; nothing, and a fault, where it can't be read.
std::optional<std::string> ReadInfFile(const FileSystem& files, Package& package, const char* name)
{
    const Text path = JoinPath(package.folder, name);
    try {
        if (files.FileExists(path))
            return ReadWholeFile(files, path);
        package.faults.push_back(Text(name) + " saknas.");
    } catch (const RunError& error) {
        package.faults.push_back(Text(name) + " kan ej läsas: " + FailureText(error) + ".");
    }
    return std::nullopt;
}

void ReadInfFiles(const FileSystem& files, Package& package)
{
    const auto setupBytes = ReadInfFile(files, package, kSetupInformationName);
    package.setup = ReadSetupInformation(setupBytes.value_or(""));
    if (setupBytes && !package.setup.isWhole)
        package.faults.push_back(Text(kSetupInformationName) +
                                 " är skadad: typen, en listas slut eller filens slut saknas.");

    const auto listBytes = ReadInfFile(files, package, kFileListName);
    InstallFileList list = ReadInstallFileList(listBytes.value_or(""));
    if (listBytes && !list.isWhole)
        package.faults.push_back(
            Text(kFileListName) +
            " är skadad: typen, listans slut eller filens slut saknas, eller en rad är felaktig.");
    package.rows = std::move(list.rows);
}

// The pieces of the container, one for each disk; nothing where one is missing.
std::unique_ptr<InputFile> OpenPieces(const FileSystem& files, Package& package)
{
    const bool isSpanned = MediumOf(package.setup) == Medium::Floppy;
    const int disks = isSpanned ? std::max(package.setup.Floppies, 1) : 1;
    std::vector<std::unique_ptr<InputFile>> pieces;
    for (int disk = 1; disk <= disks; ++disk) {
        const Text path = JoinPath(DiskFolder(package.folder, disk), kFileContainerName);
        if (!files.FileExists(path)) {
            const Text where = disk > 1 ? " på diskett " + NumberText(disk) : Text();
            package.faults.push_back(kFileContainerName + where + " saknas: '" + path + "'.");
            return nullptr;
        }
        pieces.push_back(files.OpenInput(path));
    }
    return std::make_unique<JoinedInput>(std::move(pieces));
}

void OpenContainer(const FileSystem& files, Package& package)
{
    try {
        if (auto pieces = OpenPieces(files, package))
            package.container = OpenAnyContainer(std::move(pieces));
    } catch (const ZipError& error) {
        package.faults.push_back(Text(kFileContainerName) + " är skadad: " + error.what() + ".");
    } catch (const RunError& error) {
        package.faults.push_back(Text(kFileContainerName) + " kan ej läsas: " + FailureText(error) +
                                 ".");
    }
}

struct ServingEntry {
    std::size_t entry;
    std::optional<LocalTime> modified;
};
using EntryOfRow = std::map<int, ServingEntry>; // by the row's number

EntryOfRow FindEntries(Package& package)
{
    EntryOfRow found;
    const auto& entries = package.container->Entries();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        bool servesARow = false;
        for (const ServedRow& row : ServedRows(entries[i].comment)) {
            const bool isRow =
                row.number > 0 && row.number <= static_cast<int>(package.rows.size());
            servesARow = servesARow || isRow;
            if (isRow && !found.emplace(row.number, ServingEntry{i, row.modified}).second)
                package.faults.push_back(Text(kFileContainerName) + " har fler än en post för F" +
                                         NumberText(row.number) + ".");
        }
        if (!servesARow)
            package.faults.push_back(Text(kFileContainerName) + ": posten '" + entries[i].name +
                                     "' hör inte till någon rad i " + kFileListName + ".");
    }
    return found;
}

bool HasSource(const InstallRow& row)
{
    return row.name != kEmptyFolderName;
}

RowBytes MissingBytes(const InstallRow& row, Text expectedPath)
{
    return {.place = MayLackSource(row) ? RowBytes::Place::None : RowBytes::Place::Missing,
            .path = std::move(expectedPath)};
}

RowBytes FindLooseFile(const FileSystem& files, const Package& package, const InstallRow& row)
{
    Text path = LooseFilePath(package.folder, package.setup, row);
    // Nothing outside the package is looked at.
    if (FaultOfRow(row, MediumOf(package.setup) == Medium::CdTree) != PathFault::None)
        return {.place = RowBytes::Place::Missing, .path = {}};
    if (!files.FileExists(path))
        return MissingBytes(row, std::move(path));
    return {.place = RowBytes::Place::LooseFile, .path = std::move(path)};
}

RowBytes FindEntry(const EntryOfRow& entries, const InstallRow& row)
{
    const auto found = entries.find(row.number);
    if (found == entries.end())
        return MissingBytes(row, {});
    return {.place = RowBytes::Place::Container,
            .entry = found->second.entry,
            .path = {},
            .modified = found->second.modified};
}

void FindBytesOfRows(const FileSystem& files, Package& package)
{
    const bool usesContainer = UsesContainer(package.setup);
    if (usesContainer && std::ranges::any_of(package.rows, HasSource))
        OpenContainer(files, package);
    const EntryOfRow entries = package.container ? FindEntries(package) : EntryOfRow();
    for (const InstallRow& row : package.rows) {
        if (!HasSource(row))
            package.bytes.emplace_back();
        else
            package.bytes.push_back(usesContainer ? FindEntry(entries, row)
                                                  : FindLooseFile(files, package, row));
    }
}

} // namespace

Package OpenPackage(const FileSystem& files, const Text& folder)
{
    Package package;
    package.folder = folder;
    package.manifest = ReadPackageManifest(files, folder);
    ReadInfFiles(files, package);
    FindBytesOfRows(files, package);
    return package;
}

void ExtractRow(const FileSystem& files, Package& package, std::size_t row,
                const ZipReader::Sink& sink)
{
    const RowBytes& bytes = package.bytes[row];
    switch (bytes.place) {
    case RowBytes::Place::None:
        return;
    case RowBytes::Place::Missing:
        throw RunError(ErrorNumber::kFileNotFound, package.rows[row].name);
    case RowBytes::Place::Container:
        package.container->Extract(package.container->Entries()[bytes.entry],
                                   package.setup.project.DialogBoxData.CorrectPassword, sink);
        return;
    case RowBytes::Place::LooseFile:
        break;
    }
    constexpr std::size_t kPieceSize = 64 * 1024;
    const auto file = files.OpenInput(bytes.path);
    std::vector<std::byte> piece(kPieceSize);
    while (const std::size_t count = file->Read(piece))
        sink(std::span<const std::byte>(piece).first(count));
}

} // namespace quillon
