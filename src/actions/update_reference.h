// The file by which a setup finds an installed version.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// The name as the project keeps it: in capitals, so that it is seen to be compared without regard
/// to case.
Text UpdateReferenceName(const Text& typed);

} // namespace quillon
