#include "design/letter_join.h"

#include "design/canvas.h"

#include <algorithm>
#include <numeric>

namespace quillon {

namespace {

// No line on a screen is longer; a larger mask can only come from a wrong record.
constexpr int kMaxMaskWidth = 1 << 15;
// Lines below and through letters, as parts of the letters' size.
constexpr int kRuleThickness = 14;
constexpr int kUnderlineBelow = 9;
constexpr int kStrikeOutAbove = 4;

PixelRect Union(const PixelRect& a, const PixelRect& b)
{
    if (a.IsEmpty())
        return b;
    if (b.IsEmpty())
        return a;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

/// The lines of the font under and through so many pixels, seen from the baseline.
std::vector<PixelRect> RulesOf(const ScreenFont& font, int width)
{
    const int thickness = std::max(font.size / kRuleThickness, 1);
    std::vector<PixelRect> rules;
    if (font.isUnderlined)
        rules.push_back(RectAt(0, std::max(font.size / kUnderlineBelow, 1), width, thickness));
    if (font.isStrikeOut)
        rules.push_back(RectAt(0, -font.size / kStrikeOutAbove - thickness, width, thickness));
    return rules;
}

class Joining {
public:
    Joining(const std::vector<LetterMask>& letters, const std::vector<int>& advances)
        : letters_(letters)
    {
        int pen = 0;
        for (std::size_t i = 0; i < letters.size(); ++i) {
            pens_.push_back(pen);
            pen += i < advances.size() ? advances[i] : 0;
        }
    }

    LetterMask Run(const std::vector<PixelRect>& rules)
    {
        PixelRect whole;
        for (std::size_t i = 0; i < letters_.size(); ++i)
            whole = Union(whole, PlaceOf(i));
        for (const PixelRect& rule : rules)
            whole = Union(whole, rule);
        whole.right = std::min(whole.right, whole.left + kMaxMaskWidth);
        if (whole.IsEmpty())
            return {};
        mask_ = {whole.left, whole.top, whole.Width(), whole.Height(), {}};
        mask_.coverage.resize(static_cast<std::size_t>(mask_.width) *
                              static_cast<std::size_t>(mask_.height));
        for (std::size_t i = 0; i < letters_.size(); ++i)
            Add(letters_[i], Intersect(PlaceOf(i), whole), pens_[i]);
        for (const PixelRect& rule : rules)
            Fill(Intersect(rule, whole));
        return std::move(mask_);
    }

private:
    PixelRect PlaceOf(std::size_t i) const
    {
        const LetterMask& letter = letters_[i];
        return RectAt(pens_[i] + letter.left, letter.top, letter.width, letter.height);
    }

    std::uint8_t* At(int x, int y)
    {
        return mask_.coverage.data() + std::ptrdiff_t{y - mask_.top} * mask_.width + x - mask_.left;
    }

    // Where letters overlap, the one that covers more counts.
    void Add(const LetterMask& letter, const PixelRect& part, int pen)
    {
        for (int y = part.top; y < part.bottom; ++y) {
            const std::uint8_t* from = letter.coverage.data() +
                                       std::ptrdiff_t{y - letter.top} * letter.width +
                                       (part.left - pen - letter.left);
            std::uint8_t* to = At(part.left, y);
            for (int x = part.left; x < part.right; ++x, ++from, ++to)
                *to = std::max(*to, *from);
        }
    }

    void Fill(const PixelRect& rule)
    {
        for (int y = rule.top; y < rule.bottom; ++y)
            std::fill_n(At(rule.left, y), std::max(rule.Width(), 0), std::uint8_t{255});
    }

    const std::vector<LetterMask>& letters_;
    std::vector<int> pens_;
    LetterMask mask_;
};

} // namespace

LetterMask JoinLetters(const ScreenFont& font, const std::vector<LetterMask>& letters,
                       const std::vector<int>& advances)
{
    const int width = std::accumulate(advances.begin(), advances.end(), 0);
    return Joining(letters, advances).Run(RulesOf(font, width));
}

} // namespace quillon
