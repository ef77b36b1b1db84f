#include "formats/package_files.h"

#include "helpers/windows_path.h"

namespace quillon {

Text MarkedName(const Text& name)
{
    return name + "_";
}

Text FolderInTree(const Text& base, const Text& destination)
{
    const Text folder = RemoveLastBackslash(destination);
    return JoinPath(base, folder.starts_with('%') ? folder.substr(1) : folder);
}

} // namespace quillon
