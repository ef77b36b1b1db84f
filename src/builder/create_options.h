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
};

/// The options of a fresh tool whose programs and data lie in this folder.
inline CreateOptions DefaultCreateOptions(const Text& toolFolder)
{
    return {.TempZipPath = toolFolder + "\\TEMP", .ToolFolder = toolFolder};
}

/// The setup's background as the tool shows it. These values hold where there is no window.
struct DesignSurface {
    ScreenMetrics screen;
    int width = 640; // pixels
    int height = 480;
};

} // namespace quillon
