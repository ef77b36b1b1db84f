// A folder of files that come with the tool, and the user's own folder of that name: what the user
// makes is written there where nothing can be written beside the tool.
#pragma once

#include "platform/file_system.h"

namespace quillon {

struct DataFolders {
    /// `ownFolder` is where the tool writes; empty where that is its own folder.
    DataFolders(const Text& toolFolder, const Text& ownFolder, const char* name);

    Text ofTool;
    Text own; // may be the same
};

/// The path of a file that is there, or where it would be expected. Of two equal names the user's
/// own counts.
Text PathIn(const FileSystem& files, const DataFolders& folders, const Text& name);

} // namespace quillon
