// Lines of letters put together from single ones, so that every system's letters are at the same
// places, with the same lines below and through them.
#pragma once

#include "design/letters.h"

namespace quillon {

/// One mask for a line: `letters[i]` begins where the advances before it end. The font gives only
/// whether lines go below the letters and through them.
LetterMask JoinLetters(const ScreenFont& font, const std::vector<LetterMask>& letters,
                       const std::vector<int>& advances);

} // namespace quillon
