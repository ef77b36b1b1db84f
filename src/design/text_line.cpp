#include "design/text_line.h"

#include <algorithm>
#include <numeric>

namespace quillon {

namespace {

bool IsContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// Where each code point begins, and where the text ends.
std::vector<std::size_t> Beginnings(const Text& text)
{
    std::vector<std::size_t> begins;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (!IsContinuation(text[i]))
            begins.push_back(i);
    begins.push_back(text.size());
    return begins;
}

// One paragraph, which has no line ends of its own.
class Wrapping {
public:
    Wrapping(Letters& letters, const ScreenFont& font, const Text& text, int width)
        : text_(text), begins_(Beginnings(text)), advances_(letters.Advances(font, text)),
          width_(width)
    {
    }

    void Into(std::vector<Text>& lines)
    {
        const std::size_t count = begins_.size() - 1;
        if (count == 0)
            lines.emplace_back();
        for (std::size_t first = 0; first < count;) {
            const std::size_t end = LineEnd(first);
            std::size_t visible = end;
            while (visible > first + 1 && IsBlank(visible - 1))
                --visible;
            lines.push_back(text_.substr(begins_[first], begins_[visible] - begins_[first]));
            first = end;
        }
    }

private:
    bool IsBlank(std::size_t at) const { return text_[begins_[at]] == ' '; }

    /// After the last code point of the line that begins at `first`.
    std::size_t LineEnd(std::size_t first) const
    {
        const std::size_t count = begins_.size() - 1;
        std::size_t breakAt = first;
        int used = 0;
        for (std::size_t i = first; i < count; ++i) {
            used += i < advances_.size() ? advances_[i] : 0;
            // A blank at the end of a line hangs over its edge.
            if (used > width_ && !IsBlank(i) && i > first)
                return breakAt > first ? breakAt : i;
            if (IsBlank(i))
                breakAt = i + 1;
        }
        return count;
    }

    const Text& text_;
    std::vector<std::size_t> begins_;
    std::vector<int> advances_;
    int width_;
};

} // namespace

TextLine MakeLine(Letters& letters, const ScreenFont& font, const Text& text, int spacing)
{
    TextLine line;
    if (text.empty())
        return line;
    std::vector<int> advances = letters.Advances(font, text);
    for (std::size_t i = 0; i + 1 < advances.size(); ++i)
        advances[i] += spacing;
    line.width = std::max(std::accumulate(advances.begin(), advances.end(), 0), 0);
    line.mask = letters.Draw(font, text, advances);
    return line;
}

void PaintLine(const Canvas& canvas, const TextLine& line, int left, int baseline, Colour colour)
{
    const LetterMask& mask = line.mask;
    const int x0 = left + mask.left;
    const int y0 = baseline + mask.top;
    const PixelRect part = Intersect(RectAt(x0, y0, mask.width, mask.height), canvas.clip);
    if (part.IsEmpty())
        return;
    const Pixel pixel = PixelOf(colour);
    for (int y = part.top; y < part.bottom; ++y) {
        const std::uint8_t* from = mask.coverage.data() + std::ptrdiff_t{y - y0} * mask.width - x0;
        Pixel* row = canvas.Row(y);
        for (int x = part.left; x < part.right; ++x)
            if (from[x] != 0)
                row[x] = Over(Covering(pixel, from[x]), row[x]);
    }
}

std::vector<Text> WrapText(Letters& letters, const ScreenFont& font, const Text& text, int width)
{
    std::vector<Text> lines;
    for (const Text& paragraph : SplitLines(text))
        Wrapping(letters, font, paragraph, width).Into(lines);
    return lines;
}

} // namespace quillon
