// The file in which the text of the RTF box is kept, and what it is called.
#pragma once

#include "platform/ask.h"
#include "platform/data_folders.h"

namespace quillon {

/// The folders in which the texts lie; the editor writes into `own`. `PathIn` finds one.
struct RTFboxFolders : DataFolders {
    RTFboxFolders(const Text& toolFolder, const Text& ownFolder = {})
        : DataFolders(toolFolder, ownFolder, "RTF")
    {
    }
};

/// The name that the editor proposes for a box without a file: the project's own with "rtf" after
/// its dot. Kept: an unsaved project has no ".qnp" to find, and is given "rtf" alone.
Text ProposedRTFfilename(const Text& projectFileName);

/// The name under which the text is stored: one without ".rtf" anywhere gets it.
Text StoredRTFfilename(const Text& typed);

/// Whether OK may close the editor; the user is informed where not. A name that leads out of the
/// folder, or that Windows can't hold, is none.
bool CheckRTFfilename(const Text& typed, Ask& ask);

/// What happens to the file that the new one replaces. One that the editor did not show whole is
/// kept beside it.
enum class OldRtfFile { Replaced, Kept };

/// Writes the file beside its name first, so that one that was there stays whole until the new one
/// is. Throws `RunError`.
void SaveRTFbox(FileSystem& files, const Text& path, std::string_view bytes, OldRtfFile old);

/// Tells what of the file the editor does not show, and that the file is kept.
void ReportRtfLosses(const std::vector<Text>& losses, bool isCut, const Text& path, Ask& ask);

} // namespace quillon
