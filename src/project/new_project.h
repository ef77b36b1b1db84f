// A new project, and what it keeps of the one before.
#pragma once

#include "project/records.h"

namespace quillon {

/// Gives every field the value of a new project. `Comments`, the picture names of the slide show
/// and the last destination choice keep what the project before had.
void ResetToNewProject(Project& project, OpenProjectState& state, const Text& toolFolder);

// What the default picture is called, and how the project file names it where a path can't be had.
inline constexpr const char* kDefaultDlgBitmapName = "SetupDef.bmp";

/// The side picture that the setup's dialogs have until the user chooses another.
Text DefaultDlgBitmap(const Text& toolFolder);

} // namespace quillon
