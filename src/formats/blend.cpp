#include "formats/blend.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::int64_t kWholeDepth = 100;

// One of the three parts of a colour, that part of the way from one to the other, rounded.
std::int64_t BlendPart(std::int64_t from, std::int64_t to, std::int64_t done, std::int64_t whole)
{
    const std::int64_t doubled = 2 * (to - from) * done;
    return from + (doubled + (doubled < 0 ? -whole : whole)) / (2 * whole);
}

} // namespace

Colour BlendColour(Colour from, Colour to, Long depth, int at, int last)
{
    if (last <= 0 || depth <= 0)
        return from & 0xFFFFFF;
    const std::int64_t whole = last * kWholeDepth;
    const std::int64_t done = std::min(std::int64_t{at} * depth, whole);
    std::int64_t colour = 0;
    for (const int shift : {0, 8, 16})
        colour |= BlendPart((from >> shift) & 0xFF, (to >> shift) & 0xFF, done, whole) << shift;
    return static_cast<Colour>(colour);
}

} // namespace quillon
