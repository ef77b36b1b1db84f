// The colours of the setup's background. Tool and setup paint it by different means from the same
// arithmetic, so that the preview shows the same colours.
#pragma once

#include "project/records.h"

namespace quillon {

/// The colour at step `at` of 0 to `last`. `depth` is a percentage: at 100 the last step has the
/// colour `to`; below, the blend ends that part of the way; above, it is there earlier and stays.
Colour BlendColour(Colour from, Colour to, Long depth, int at, int last);

} // namespace quillon
