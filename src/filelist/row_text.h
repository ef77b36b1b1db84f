// What the texts of a row may hold.
#pragma once

#include "platform/ask.h"

namespace quillon {

/// False, and tells why, where the text cannot stand in a row: a semicolon would cut the row in two
/// in the project file. `what` is the text as the user knows it, "Källsökvägen".
bool MayStandInRow(const Text& text, const Text& what, Ask& ask);

} // namespace quillon
