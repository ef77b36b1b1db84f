#include "formats/extracted_names.h"

#include "formats/package_files.h"
#include "formats/row_safety.h"
#include "helpers/windows_path.h"
#include "project/file_list.h"

namespace quillon {

namespace {

/// Every part must be a valid name: the value that a setup gives a variable is not known here.
std::optional<Text> IfPlain(const Text& name)
{
    Text joined;
    for (const Text& part : PathParts(name)) {
        if (FaultOfName(part) != PathFault::None)
            return std::nullopt;
        joined = JoinPath(joined, part);
    }
    return joined.empty() ? std::nullopt : std::optional(joined);
}

} // namespace

std::optional<Text> ExtractedName(const InstallRow& row)
{
    if (FaultOfRow(row, false) != PathFault::None)
        return std::nullopt;
    Text folder = FolderInTree("", TrimBlanks(row.destination));
    std::erase(folder, ':');
    return IfPlain(row.name == kEmptyFolderName ? folder : folder + "\\" + row.name);
}

std::optional<Text> ExtractedScreenName(const Text& entry)
{
    if (FaultOfName(entry) != PathFault::None)
        return std::nullopt;
    return JoinPath(kExtractedScreenFolder, entry);
}

} // namespace quillon
