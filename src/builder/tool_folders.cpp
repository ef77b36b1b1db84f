#include "builder/tool_folders.h"

#include "helpers/windows_path.h"

namespace quillon {

namespace {

constexpr const char* kToolFolders[] = {
    "Res",      "Language", "RTF",       "Test", "Release", "Release\\Small32", "Release\\Full32",
    "Projects", "Diagnos",  "BugReport", "TEMP"};

} // namespace

void MakeToolFolders(const CreateOptions& options, FileSystem& files)
{
    for (const char* name : kToolFolders)
        files.DirCreate(JoinPath(options.OwnFolder, name));
}

} // namespace quillon
