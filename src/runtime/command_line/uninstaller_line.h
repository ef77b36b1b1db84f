// How the uninstaller's starter begins the line by which it starts the setup proper.
#pragma once

#include "helpers/text.h"

#include <optional>

namespace quillon {

struct StarterLine {
    Text program; // the starter's own file, in the main folder
    Text given;   // the starter's own switches
};

/// Nothing where the line is not the starter's: then it is a setup's.
std::optional<StarterLine> ReadStarterLine(const Text& commandLine);

} // namespace quillon
