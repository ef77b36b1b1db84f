#include "builder/language_copy.h"

#include "actions/language_files.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

namespace quillon {

void CopyLanguageTo(const Text& folder, const Text& name, const Text& toolFolder, FileSystem& files)
{
    const Text source = JoinPath(LanguageFolder(toolFolder), name);
    // A project from elsewhere must not name a file outside the two folders.
    if (name.empty() || name.find_first_of("\\/:") != Text::npos)
        throw RunError(ErrorNumber::kBadFileName, source);
    files.CopyContent(source, JoinPath(folder, name));
}

} // namespace quillon
