// A file that stays what it is for as long as it is read.
#pragma once

#include "platform/file_system.h"

namespace quillon {

/// Nobody can write to the file, give another one its name or remove it until it is closed. Throws
/// as `FileSystem::OpenInput` does, and where somebody writes to it at the moment.
std::unique_ptr<InputFile> OpenHeldFile(const Text& path);

} // namespace quillon
