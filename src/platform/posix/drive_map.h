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

class DriveMap {
public:
    /// Where a letter comes twice, the first one counts.
    explicit DriveMap(std::vector<MappedDrive> drives);

    /// Upper and lower case of the path do not matter. ".." stops at the drive's root. A path
    /// without a drive stands in the working folder. Nothing for a drive that is not mapped, and
    /// for a network path.
    std::optional<std::string> ToHost(const Text& windowsPath) const;

    /// The drive whose folder holds the path most closely. Nothing where a name on the way has a
    /// backslash, which no Windows path can hold.
    std::optional<Text> ToWindows(const std::string& hostPath) const;

    /// The mapped folder of a drive; nothing where the letter is free.
    std::optional<std::string> FolderOf(char letter) const;

    NameLookup& Names() const { return *names_; }

private:
    std::vector<MappedDrive> drives_; // folders without trailing slash, so that "/" is empty
    std::unique_ptr<NameLookup> names_;
};

} // namespace quillon
