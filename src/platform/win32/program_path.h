// Where the running program is.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// The folder that the running program's file is in, and that file.
Text ProgramFolder();
Text ProgramPath();

} // namespace quillon
