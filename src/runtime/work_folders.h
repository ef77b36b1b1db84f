// The private folders of setups, in the system's folder for temporary files: files of the package
// are put there while the setup works. A setup that was killed leaves its folder behind.
#pragma once

#include "platform/file_system.h"

#include <functional>

namespace quillon {

/// The lock in such a folder, which its owner holds while it runs.
Text WorkFolderLock(const Text& folder);

/// Removes the folders that no running setup owns. Only files that a setup puts there are removed,
/// and only in folders for which `isLink` is false: another user could lead an administrator
/// elsewhere by a link.
void RemoveAbandonedWorkFolders(FileSystem& files, const Text& tempFolder,
                                const std::function<bool(const Text&)>& isLink);

} // namespace quillon
