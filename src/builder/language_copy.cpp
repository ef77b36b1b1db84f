#include "builder/language_copy.h"

#include "actions/language_files.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

namespace quillon {

void CopyLanguageTo(const Text& folder, const Text& name, const CreateOptions& options,
                    FileSystem& files)
{
    const LanguageFolders folders(options.ToolFolder, options.OwnFolder);
    // A project from elsewhere must not name a file outside these folders.
    if (name.empty() || name.find_first_of("\\/:") != Text::npos)
        throw RunError(ErrorNumber::kBadFileName, JoinPath(folders.ofTool, name));
    files.CopyContent(PathIn(files, folders, name), JoinPath(folder, name));
}

} // namespace quillon
