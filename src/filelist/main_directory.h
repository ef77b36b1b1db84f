// What may occur as the main folder of an installation. The setup works it out before it knows any
// other variable, so only a few can be in it.
#pragma once

#include "platform/ask.h"

#include <string_view>

namespace quillon {

/// The main folder as it is to be in its field after the user has left it; empty where what was
/// typed can be no folder. The boxes only inform; none of them keeps the user in the field.
Text CheckMainDirectory(std::string_view typed, Ask& ask);

} // namespace quillon
