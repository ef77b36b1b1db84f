// Letters for tests, the same on every machine: each one is a filled box as wide as half its font's
// size, and a blank covers nothing.
#pragma once

#include "design/letters.h"

namespace quillon::test {

class BlockLetters : public Letters {
public:
    FontHeight Height(const ScreenFont& font) override
    {
        return {font.size * 3 / 4, font.size - font.size * 3 / 4};
    }

    std::vector<int> Advances(const ScreenFont& font, const Text& line) override
    {
        return std::vector<int>(CharacterCount(line), font.size / 2);
    }

    LetterMask Draw(const ScreenFont& font, const Text& line,
                    const std::vector<int>& advances) override
    {
        const int ascent = Height(font).ascent;
        const int letter = font.size / 2;
        LetterMask mask{.top = -ascent, .height = ascent};
        for (const int advance : advances)
            mask.width += advance;
        mask.width += letter; // room for what a negative spacing lets hang over
        mask.coverage.assign(
            static_cast<std::size_t>(mask.width) * static_cast<std::size_t>(mask.height), 0);
        int left = 0;
        for (std::size_t i = 0; i < advances.size(); ++i) {
            if (i >= line.size() || line[i] != ' ')
                for (int y = 0; y < mask.height; ++y)
                    for (int x = left; x < left + letter; ++x)
                        mask.coverage[static_cast<std::size_t>(y * mask.width + x)] = 255;
            left += advances[i];
        }
        drawn.push_back(line);
        return mask;
    }

    // The lines that were asked for, in order.
    std::vector<Text> drawn;
};

} // namespace quillon::test
