#include "builder/tool_folders.h"

#include "helpers/windows_path.h"

namespace quillon {

namespace {

// What comes with the tool is read from its own folder alone.
constexpr const char* kReadFolders[] = {"Res", "RTF", "Release"};
constexpr const char* kWrittenFolders[] = {"Language", "Test",      "Projects",
                                           "Diagnos",  "BugReport", "TEMP"};

} // namespace

void MakeToolFolders(const CreateOptions& options, FileSystem& files)
{
    for (const char* name : kWrittenFolders)
        files.DirCreate(JoinPath(options.OwnFolder, name));
    if (options.OwnFolder != options.ToolFolder)
        return;
    for (const char* name : kReadFolders)
        files.DirCreate(JoinPath(options.ToolFolder, name));
}

} // namespace quillon
