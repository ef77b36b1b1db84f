#include "runtime/pages/standard_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace quillon {

namespace {

using Shades = std::array<double, 3>; // red, green, blue

constexpr int kWidth = 164;
constexpr int kHeight = 314;
constexpr int kHorizon = 214;
constexpr int kSunX = 112;
constexpr int kSunY = 150;
constexpr int kSunRadius = 24;

// From top to bottom; the water mirrors the sky in darker ones.
constexpr Shades kSky[] = {{24, 52, 96}, {52, 104, 158}, {132, 176, 206}, {246, 214, 170}};
constexpr Shades kWater[] = {{150, 160, 168}, {62, 104, 142}, {20, 44, 82}};
constexpr Shades kHills[] = {{70, 104, 126}, {42, 76, 100}};
constexpr Shades kSunlight = {255, 244, 214};

// The file has a palette, whose colours lie on a grid of this step.
constexpr int kPaletteStep = 6;

Shades Blended(std::span<const Shades> shades, double share)
{
    const double place = std::clamp(share, 0.0, 1.0) * double(shades.size() - 1);
    const std::size_t low = std::min(std::size_t(place), shades.size() - 2);
    Shades mixed{};
    for (std::size_t i = 0; i < mixed.size(); ++i)
        mixed[i] = std::nearbyint(shades[low][i] +
                                  (shades[low + 1][i] - shades[low][i]) * (place - double(low)));
    return mixed;
}

double HillTop(int x, int number)
{
    return number == 0 ? kHorizon - 26 - 14 * std::sin(x / 34.0 + 0.6)
                       : kHorizon - 10 - 9 * std::sin(x / 21.0 + 2.4);
}

Shades WaterAt(int x, int y)
{
    const double depth = double(y - kHorizon) / (kHeight - kHorizon);
    const Shades water = Blended(kWater, depth);
    // A path of light below the sun, wider towards the viewer, broken into strips.
    if (std::abs(x - kSunX) >= 8 + 26 * depth || (y - kHorizon) % 7 >= 3)
        return water;
    const Shades both[] = {kSunlight, water};
    return Blended(both, 0.35 + 0.5 * depth);
}

Shades ShadesAt(int x, int y)
{
    if (y >= kHorizon)
        return WaterAt(x, y);
    for (const int number : {1, 0})
        if (y >= HillTop(x, number))
            return kHills[number];
    const double distance = std::hypot(x - kSunX, y - kSunY);
    if (distance <= kSunRadius)
        return kSunlight;
    const Shades both[] = {kSunlight, Blended(kSky, double(y) / kHorizon)};
    return Blended(both, 0.55 + (distance - kSunRadius) / 60);
}

Pixel PixelAt(int x, int y)
{
    Pixel pixel = 0xFF;
    for (const double shade : ShadesAt(x, y)) {
        const int cell = int(shade) / kPaletteStep;
        pixel = pixel << 8 | Pixel(std::min(255, cell * kPaletteStep + kPaletteStep / 2));
    }
    return pixel;
}

} // namespace

Picture StandardSidePicture()
{
    Picture picture{kWidth, kHeight, {}};
    picture.pixels.reserve(std::size_t{kWidth} * kHeight);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            picture.pixels.push_back(PixelAt(x, y));
    return picture;
}

} // namespace quillon
