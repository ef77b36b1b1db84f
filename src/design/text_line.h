// Lines of letters on the screen: their width, their shadow, and how a text breaks into them.
#pragma once

#include "design/canvas.h"
#include "design/letters.h"

namespace quillon {

/// A line that is ready to be painted.
struct TextLine {
    LetterMask mask;
    int width = 0; // from the first letter's beginning to the last one's end
};

/// `spacing` is put between each two letters, in pixels; it may be negative.
TextLine MakeLine(Letters& letters, const ScreenFont& font, const Text& text, int spacing = 0);

/// `left` is where the first letter begins.
void PaintLine(const Canvas& canvas, const TextLine& line, int left, int baseline, Colour colour);

/// The text in lines of at most `width` pixels: at its own line ends, and between words where it is
/// wider. A word that is wider alone is cut.
std::vector<Text> WrapText(Letters& letters, const ScreenFont& font, const Text& text, int width);

} // namespace quillon
