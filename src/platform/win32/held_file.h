// A file that can't be changed while it is read.
#pragma once

#include "platform/file_system.h"

namespace quillon {

/// Until the file is closed, no other program can write to it, give another file its name or remove
/// it. Throws as `FileSystem::OpenInput` does, and where another program has it open for writing.
std::unique_ptr<InputFile> OpenHeldFile(const Text& path);

} // namespace quillon
