// Drive letters on a system that has none. The one place where a Windows path becomes a path of
// this machine, and back.
#pragma once

#include "helpers/text.h"
#include "platform/posix/name_lookup.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

struct MappedDrive {
    char letter = 'Z';
    std::string folder = "/"; // an absolute host path
};

/// A folder of a drive that lies elsewhere on this machine, such as the user's documents.
struct MappedFolder {
    Text path;          // "C:\\Mina dokument"
    std::string folder; // an absolute host path
};

class DriveMap {
public:
    /// Where a letter comes twice, the first one counts.
    explicit DriveMap(std::vector<MappedDrive> drives, std::vector<MappedFolder> folders = {});

    /// Upper and lower case of the path do not matter. ".." stops at the drive's root. A path
    /// without a drive is in the working folder. Nothing for a drive that is not mapped, and
    /// for a network path.
    std::optional<std::string> ToHost(const Text& windowsPath) const;

    /// By the drive or the mapped folder that holds the path most closely. Nothing where a name on
    /// the way has a backslash, which no Windows path can hold.
    std::optional<Text> ToWindows(const std::string& hostPath) const;

    /// The mapped folder of a drive; nothing where the letter is free.
    std::optional<std::string> FolderOf(char letter) const;

    /// Whether the path is that of a mapped folder, which need not be there yet.
    bool IsMappedFolder(const Text& windowsPath) const;

    NameLookup& Names() const { return *names_; }

private:
    const MappedFolder* FolderAbove(const Text& windowsPath) const;

    // Folders without trailing slash, so that "/" is empty.
    std::vector<MappedDrive> drives_;
    std::vector<MappedFolder> folders_;
    std::unique_ptr<NameLookup> names_;
};

} // namespace quillon
