// Copying a file that may be large.
#pragma once

#include "platform/ask.h"
#include "platform/file_system.h"

namespace quillon {

/// Copies as `CopyContent` does. A large file is on its way in a thread of its own meanwhile, and
/// pending events run.
void CopyResponsively(FileSystem& files, Ask& ask, const Text& from, const Text& to);

} // namespace quillon
