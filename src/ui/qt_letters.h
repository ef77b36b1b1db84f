// Letters for the screen's painter, by the fonts that Qt knows.
#pragma once

#include "design/letters.h"

namespace quillon {

class QtLetters : public Letters {
public:
    FontHeight Height(const ScreenFont& font) override;
    std::vector<int> Advances(const ScreenFont& font, const Text& line) override;
    LetterMask Draw(const ScreenFont& font, const Text& line,
                    const std::vector<int>& advances) override;
};

} // namespace quillon
