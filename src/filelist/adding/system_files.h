// Windows' own files that projects often carry, and the cases in which they are left out.
#pragma once

#include "project/records.h"

#include <string_view>

namespace quillon {

/// `TargetOperatingSystem` of a package for Windows ME, 2000 and XP only.
inline constexpr int kOnlyNewWindows = 1;

/// The files that Windows XP guards in its system folder, so that they can't be taken from there.
bool IsProtectedOnWindowsXP(std::string_view fileName);

/// True for the files that newer versions of Windows bring themselves, in a package for these.
bool IsFileSkippedForTargetOS(std::string_view fileName, int targetOperatingSystem);
/// The same of a row, in a package of the project.
bool IsRowSkipped(const FileListRow& row, const Project& project);

} // namespace quillon
