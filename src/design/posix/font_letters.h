// Letters for the screen's painter by FreeType, of the fonts that fontconfig finds. No display is
// needed.
#pragma once

#include "design/letters.h"

#include <memory>

namespace quillon {

class FontLetters : public Letters {
public:
    FontLetters();
    ~FontLetters() override;

    /// Whether the machine has any font; without one every line is empty.
    bool HasFonts();

    FontHeight Height(const ScreenFont& font) override;
    std::vector<int> Advances(const ScreenFont& font, const Text& line) override;
    LetterMask Draw(const ScreenFont& font, const Text& line,
                    const std::vector<int>& advances) override;

private:
    class Fonts;
    std::unique_ptr<Fonts> fonts_;
};

} // namespace quillon
