// PACKAGE.SHA256: the digest of every file of a package, written last of all, so that tool and
// setup can tell a whole package from a half or a damaged one. `sha256sum -c` reads it too.
//
// A line holds no size: two files with one digest have one size, since SHA-256 takes the length in.
// While a package is being made the manifest is there and empty. Whatever ends Create before its
// last step, a failure as well as a power cut, leaves it so.
#pragma once

#include "helpers/sha256.h"
#include "platform/file_system.h"

#include <functional>
#include <set>
#include <string_view>

namespace quillon {

struct ManifestLine {
    Text name; // below the package's folder, with '\' between folders
    Sha256Digest digest;

    bool operator==(const ManifestLine&) const = default;
};

struct PackageManifest {
    enum class State { Missing, Unfinished, Damaged, Whole };

    State state = State::Missing;
    std::vector<ManifestLine> lines; // those that could be read
    std::set<Text> names;            // of the lines, in lower case

    /// Whether a file of this name is listed, in whatever case.
    bool Names(const Text& name) const { return names.count(LowerCase(name)) > 0; }
};

/// Reads the bytes of a manifest. A line that is none, a name that leads out of the package, or a
/// second line for a name makes it damaged.
PackageManifest ReadManifest(std::string_view bytes);

/// The manifest of the package in this folder. One that can't be read is damaged.
PackageManifest ReadPackageManifest(const FileSystem& files, const Text& folder);

/// Puts an empty manifest into the folder.
void WriteUnfinishedManifest(FileSystem& files, const Text& folder);

/// Writes the manifest under another name first, so that it is never there by half.
void WritePackageManifest(FileSystem& files, const Text& folder, std::vector<ManifestLine> lines);

/// Called with each number of bytes read.
using BytesRead = std::function<void(std::size_t)>;

/// Throws `RunError` where the file can't be read.
Sha256Digest DigestOfFile(const FileSystem& files, const Text& path, const BytesRead& onBytes = {});

/// The same of a file that is open, from where it is.
Sha256Digest DigestOf(InputFile& file, const BytesRead& onBytes = {});

enum class FileFault { None, Missing, Unreadable, Different };

/// Compares a file of the package with its line.
FileFault CompareFile(const FileSystem& files, const Text& folder, const ManifestLine& line,
                      const BytesRead& onBytes = {});
FileFault CompareFile(InputFile& file, const ManifestLine& line, const BytesRead& onBytes = {});

} // namespace quillon
