#include "design/picture.h"

#include <algorithm>
#include <array>
#include <span>

namespace quillon {

namespace {

constexpr int kChannels = 4;
// Weights are parts of 2^14, so that a sum of 255 of them fits in 32 bits with its sign.
constexpr int kWeightBits = 14;
constexpr std::int64_t kWhole = 1 << kWeightBits;

// The source pixels that one pixel of the result is mixed of, and how much each counts.
struct Mix {
    int first = 0;
    std::vector<std::int32_t> weights;
};

// Makes the weights one whole together, so that a single colour stays what it is.
void Normalise(std::vector<std::int32_t>& weights, const std::vector<std::int64_t>& shares)
{
    std::int64_t total = 0;
    for (const std::int64_t share : shares)
        total += share;
    std::int64_t given = 0;
    for (const std::int64_t share : shares) {
        weights.push_back(static_cast<std::int32_t>(share * kWhole / total));
        given += weights.back();
    }
    *std::ranges::max_element(weights) += static_cast<std::int32_t>(kWhole - given);
}

// Smaller: how much of each source pixel the result's pixel covers, in units of 1 / to.
Mix MeanOf(int at, int from, int to)
{
    const std::int64_t begin = std::int64_t{at} * from;
    const std::int64_t end = begin + from;
    Mix mix{.first = static_cast<int>(begin / to), .weights = {}};
    std::vector<std::int64_t> shares;
    for (std::int64_t source = mix.first; source * to < end; ++source)
        shares.push_back(std::min(end, (source + 1) * to) - std::max(begin, source * to));
    Normalise(mix.weights, shares);
    return mix;
}

// Larger: the two source pixels whose middles lie round the middle of the result's pixel.
Mix BetweenTwo(int at, int from, int to)
{
    const std::int64_t place = (2 * std::int64_t{at} + 1) * from - to; // in units of 1 / (2 to)
    const std::int64_t unit = 2 * std::int64_t{to};
    if (place <= 0)
        return {0, {static_cast<std::int32_t>(kWhole)}};
    const std::int64_t first = place / unit;
    if (first >= from - 1)
        return {from - 1, {static_cast<std::int32_t>(kWhole)}};
    const auto second = static_cast<std::int32_t>((place % unit) * kWhole / unit);
    return {static_cast<int>(first), {static_cast<std::int32_t>(kWhole) - second, second}};
}

std::vector<Mix> Mixes(int from, int to)
{
    std::vector<Mix> mixes;
    mixes.reserve(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i)
        mixes.push_back(to < from ? MeanOf(i, from, to) : BetweenTwo(i, from, to));
    return mixes;
}

Pixel Mixed(const Pixel* first, std::ptrdiff_t step, std::span<const std::int32_t> weights)
{
    std::array<std::int32_t, kChannels> sums{};
    for (const std::int32_t weight : weights) {
        for (int channel = 0; channel < kChannels; ++channel)
            sums[static_cast<std::size_t>(channel)] +=
                static_cast<std::int32_t>(*first >> (8 * channel) & 0xFF) * weight;
        first += step;
    }
    Pixel mixed = 0;
    for (int channel = 0; channel < kChannels; ++channel)
        mixed |= static_cast<Pixel>((sums[static_cast<std::size_t>(channel)] + kWhole / 2) >>
                                    kWeightBits)
                 << (8 * channel);
    return mixed;
}

Picture Sized(int width, int height)
{
    return {width, height,
            std::vector<Pixel>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))};
}

Picture ScaledAcross(const Picture& picture, int width)
{
    Picture result = Sized(width, picture.height);
    const std::vector<Mix> mixes = Mixes(picture.width, width);
    Pixel* out = result.pixels.data();
    for (int y = 0; y < picture.height; ++y) {
        const Pixel* row = picture.pixels.data() + std::ptrdiff_t{y} * picture.width;
        for (const Mix& mix : mixes)
            *out++ = Mixed(row + mix.first, 1, mix.weights);
    }
    return result;
}

Picture ScaledDown(const Picture& picture, int height)
{
    Picture result = Sized(picture.width, height);
    Pixel* out = result.pixels.data();
    for (const Mix& mix : Mixes(picture.height, height)) {
        const Pixel* row = picture.pixels.data() + std::ptrdiff_t{mix.first} * picture.width;
        for (int x = 0; x < picture.width; ++x)
            *out++ = Mixed(row + x, picture.width, mix.weights);
    }
    return result;
}

} // namespace

Colour TransparentColour(Integer number)
{
    // In the order of the editors' list, 0x00BBGGRR.
    static constexpr Colour kColours[] = {0x00FFFF, 0x0000FF, 0xFF0000, 0x00FF00,
                                          0xFFFF00, 0xFF00FF, 0x000080, 0x800000,
                                          0x000000, 0x808080, 0xC0C0C0, 0xFFFFFF};
    const bool isKnown = number >= 0 && static_cast<std::size_t>(number) < std::size(kColours);
    return isKnown ? kColours[number] : 0;
}

void MakeTransparent(Picture& picture, Colour colour)
{
    std::ranges::replace(picture.pixels, PixelOf(colour), Pixel{0});
}

Picture Scaled(const Picture& picture, int width, int height)
{
    if (picture.IsEmpty() || width < 1 || height < 1)
        return {};
    if (width == picture.width && height == picture.height)
        return picture;
    // The smaller direction first, so that less is left for the second.
    if (height < picture.height)
        return ScaledAcross(ScaledDown(picture, height), width);
    return ScaledDown(ScaledAcross(picture, width), height);
}

void PaintPicture(const Canvas& canvas, const Picture& picture, int left, int top)
{
    const PixelRect part = Intersect(RectAt(left, top, picture.width, picture.height), canvas.clip);
    if (part.IsEmpty())
        return;
    for (int y = part.top; y < part.bottom; ++y) {
        const Pixel* from = picture.pixels.data() + std::ptrdiff_t{y - top} * picture.width - left;
        Pixel* row = canvas.Row(y);
        for (int x = part.left; x < part.right; ++x)
            row[x] = Over(from[x], row[x]);
    }
}

} // namespace quillon
