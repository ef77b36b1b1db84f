// The tool's own options that steer Create, under the names that the settings file has for them.
#pragma once

#include "helpers/number_text.h"
#include "helpers/text.h"
#include "project/project_file.h"

namespace quillon {

struct CreateOptions {
    Flag CreateZipLogFile = kOff;
    Flag UseTempZipPath = kOff;
    Text TempZipPath;
    Flag UpdateSetupExeDateTime = kOff;
    Flag PlaceCompressedFilesInFolderSetupFiles = kOn;
    Flag CreateFolderStructureInFolderSetupFiles = kOff;

    Text ToolFolder; // without a trailing backslash
    // Where the tool writes: its own folder, or the user's where that one can't be written.
    Text OwnFolder;
};

/// The options of a fresh tool whose programs and data lie in this folder. Without `ownFolder` it
/// writes there, too.
inline CreateOptions DefaultCreateOptions(const Text& toolFolder, const Text& ownFolder = {})
{
    const Text& own = ownFolder.empty() ? toolFolder : ownFolder;
    return {.TempZipPath = own + "\\TEMP", .ToolFolder = toolFolder, .OwnFolder = own};
}

/// The setup's background as the tool shows it. These values hold where there is no window.
struct DesignSurface {
    ScreenMetrics screen;
    int width = 640; // pixels
    int height = 480;
};

} // namespace quillon
