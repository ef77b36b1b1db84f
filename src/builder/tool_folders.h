// The folders below the tool's own, or below the user's replacement for it.
#pragma once

#include "builder/create_options.h"
#include "platform/file_system.h"

namespace quillon {

/// Makes those that are missing beside the tool, or in the user's folder where the tool can't write
/// beside itself. What comes with the tool is read from its own folder all the same. A folder that
/// can't be made is reported when it is needed.
void MakeToolFolders(const CreateOptions& options, FileSystem& files);

} // namespace quillon
