// The private folders of setups, in the system's folder for temporary files: what a package lends
// to the setup lies there while it works. One that was killed leaves its folder behind.
#pragma once

#include "platform/file_system.h"

#include <functional>

namespace quillon {

/// The lock in such a folder, which its owner holds for as long as it lives.
Text WorkFolderLock(const Text& folder);

/// Removes the folders that no living setup owns. Only files that a setup puts there go, and no
/// folder that `isLink` says is none: whoever may write beside them could lead an administrator
/// elsewhere.
void RemoveAbandonedWorkFolders(FileSystem& files, const Text& tempFolder,
                                const std::function<bool(const Text&)>& isLink);

} // namespace quillon
