// A font in words, as the design's editors show it beside the button that chooses it.
#pragma once

#include "helpers/number_text.h"

namespace quillon {

/// "Arial, 12 pt, fet, ej kursiv".
Text FontDescription(const Text& name, Integer size, Flag bold, Flag italic);

} // namespace quillon
