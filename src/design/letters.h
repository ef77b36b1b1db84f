// The interface to the system's fonts: how wide letters are and what they look like. Their places,
// colours and shadows are up to the caller.
#pragma once

#include "helpers/text.h"

#include <cstdint>
#include <vector>

namespace quillon {

struct ScreenFont {
    Text name;
    int size = 0; // pixels of the em square
    bool isBold = false;
    bool isItalic = false;
    bool isStrikeOut = false;
    bool isUnderlined = false;

    bool operator==(const ScreenFont&) const = default;
};

/// How far letters reach above and below their baseline, in pixels; both are positive.
struct FontHeight {
    int ascent = 0;
    int descent = 0;

    int Line() const { return ascent + descent; }
};

/// How much of each pixel a line of letters covers, 0 to 255, row by row.
struct LetterMask {
    int left = 0; // of the mask, from where the first letter begins; negative for an overhang
    int top = 0;  // of the mask, from the baseline; negative above it
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> coverage;
};

class Letters {
public:
    virtual ~Letters() = default;

    /// A font that the system lacks is replaced by its usual one.
    virtual FontHeight Height(const ScreenFont& font) = 0;
    /// How far each code point of the line moves the pen, in pixels. There is one number for each.
    virtual std::vector<int> Advances(const ScreenFont& font, const Text& line) = 0;
    /// The line's letters, each `advances[i]` pixels before the next.
    virtual LetterMask Draw(const ScreenFont& font, const Text& line,
                            const std::vector<int>& advances) = 0;
};

} // namespace quillon
