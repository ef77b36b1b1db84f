#include "builder/source_address.h"

#include "helpers/windows_path.h"

namespace quillon {

Text ConvertLongFilenameToShortFilename(const FileSystem& files, const Text& path)
{
    return LowerCase(files.ShortPath(ResolvePath(path)));
}

Text SourceFolderOnMedium(const Text& shortPath)
{
    std::string_view folder = shortPath;
    if (const std::size_t colon = folder.find(':'); colon != folder.npos)
        folder.remove_prefix(colon + 1);
    const std::size_t last = folder.rfind('\\');
    folder = folder.substr(0, last == folder.npos ? 0 : last);
    // Kept: of the two backslashes of a network path one stays.
    if (folder.starts_with('\\'))
        folder.remove_prefix(1);
    return Text(folder);
}

} // namespace quillon
