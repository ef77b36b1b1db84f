// The language file on its way from the tool to where the setup reads it.
#pragma once

#include "builder/create_options.h"
#include "platform/file_system.h"

namespace quillon {

/// Copies the tool's language file of this name into `folder`. Throws RunError, also for a name
/// that is no file's in a folder of languages.
void CopyLanguageTo(const Text& folder, const Text& name, const CreateOptions& options,
                    FileSystem& files);

} // namespace quillon
