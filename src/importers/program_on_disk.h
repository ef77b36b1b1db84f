// What a program or library on this machine needs.
#pragma once

#include "helpers/program_info.h"
#include "platform/file_system.h"

namespace quillon {

/// Nothing where the file is no Windows program, or can't be read.
std::optional<ProgramInfo> InfoOfProgram(const FileSystem& files, const Text& path);

} // namespace quillon
