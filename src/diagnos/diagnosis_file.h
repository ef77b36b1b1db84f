// What the program Diagnos does, on every system.
#pragma once

#include "diagnos/diagnosis.h"

namespace quillon {

/// Writes the diagnosis where the command line says, or beside the program, which is in a folder
/// of its own below the tool's. Where that fails the text for the user comes back, else nothing.
Text WriteDiagnosisFile(const std::vector<Text>& arguments, Host& host, const DiskSize& diskSize,
                        const Text& programFolder);

} // namespace quillon
