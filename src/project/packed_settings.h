// All of a project but its rows as one string of bytes, which is small to keep and quick to
// compare. It is for the memory of one run; what is kept on disk is the project file's matter.
#pragma once

#include "project/records.h"

#include <string_view>

namespace quillon {

/// Two projects with the same settings give the same bytes, and others don't.
Text PackSettings(const Project& project);

/// Gives the project the settings that were packed; its rows stay.
void UnpackSettings(std::string_view packed, Project& project);

} // namespace quillon
