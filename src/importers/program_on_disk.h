// What a program or library on this machine needs.
#pragma once

#include "helpers/program_facts.h"
#include "platform/file_system.h"

namespace quillon {

/// Nothing where the file is no Windows program, or can't be read.
std::optional<ProgramFacts> FactsOfProgram(const FileSystem& files, const Text& path);

} // namespace quillon
