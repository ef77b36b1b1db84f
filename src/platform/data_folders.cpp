#include "platform/data_folders.h"

#include "helpers/windows_path.h"

namespace quillon {

DataFolders::DataFolders(const Text& toolFolder, const Text& ownFolder, const char* name)
    : ofTool(JoinPath(toolFolder, name)),
      own(JoinPath(ownFolder.empty() ? toolFolder : ownFolder, name))
{
}

Text PathIn(const FileSystem& files, const DataFolders& folders, const Text& name)
{
    const Text own = JoinPath(folders.own, name);
    return files.FileExists(own) ? own : JoinPath(folders.ofTool, name);
}

} // namespace quillon
