// A finished package folder: what its two INF files say, and where the bytes of each row lie. The
// tool verifies packages by it, and the setup runtime finds its files by it.
#pragma once

#include "archive/container.h"
#include "formats/install_row.h"
#include "formats/package_files.h"
#include "formats/package_manifest.h"
#include "formats/setup_information.h"
#include "platform/file_system.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quillon {

/// Where the bytes of a row lie.
struct RowBytes {
    // A row has None when it makes a folder or never had a source.
    enum class Place { None, Container, LooseFile, Missing };

    Place place = Place::None;
    std::size_t entry = 0; // of the container
    Text path;             // of the loose file, or where one was expected
    // Where the entry serves files of several dates, that of this row.
    std::optional<LocalTime> modified = {};

    bool operator==(const RowBytes&) const = default;
};

struct Package {
    Text folder;
    SetupInformation setup;
    std::vector<InstallRow> rows;
    std::vector<RowBytes> bytes; // of the row at the same place
    PackageManifest manifest;
    std::unique_ptr<Container> container;
    // What was wrong with the package as a whole, a line each.
    std::vector<Text> faults;
};

/// The folder of a floppy package's disk: the package's own for the first, "disk2" in it and so on.
Text DiskFolder(const Text& packageFolder, int disk);
/// The container's piece on that disk, below the package's folder.
Text PieceName(int disk);

/// True where the container holds the bytes of all rows, instead of a file for each row.
bool UsesContainer(const SetupInformation& setup);

/// The numbers of the rows that an entry's comment, such as "F1 F7", names; 0 for a word that names
/// none.
std::vector<int> RowNumbers(std::string_view comment);

/// A file of a tree, below the package's folder.
Text TreeFileName(const Text& sourceFolder, const Text& name);

/// Where a row's bytes lie in a package without a container: below its folder, and with it.
Text LooseFileName(const SetupInformation& setup, const InstallRow& row);
Text LooseFilePath(const Text& packageFolder, const SetupInformation& setup, const InstallRow& row);

/// True where the row may have been written without a source: it looks like an empty file from a
/// drive's root, with no folder and the size 0.
bool MayLackSource(const InstallRow& row);

/// Reads what there is to read. Whatever is missing or damaged is listed in `faults` or by the
/// place of a row; nothing is thrown for it.
Package OpenPackage(const FileSystem& files, const Text& folder);

/// Hands the bytes of a row to `sink`, piece by piece; none where it has no bytes. Throws
/// `ZipError` or `RunError`: 53 for a row whose bytes are missing.
void ExtractRow(const FileSystem& files, Package& package, std::size_t row,
                const ZipReader::Sink& sink);

/// Reads everything in the package and reports each fault in a line; a package without one is
/// whole.
std::vector<Text> VerifyPackage(const FileSystem& files, Package& package);

} // namespace quillon
