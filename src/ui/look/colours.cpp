#include "ui/look/colours.h"

#include <QtWidgets>
#include <cmath>

namespace quillon {

namespace {

// Where a palette has no colour to select with, or a grey one.
const QColor kBlue(0x1f, 0x7a, 0xe0);

double LinearLight(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour)
{
    return 0.2126 * LinearLight(colour.redF()) + 0.7152 * LinearLight(colour.greenF()) +
           0.0722 * LinearLight(colour.blueF());
}

} // namespace

double Contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor Mixed(const QColor& one, const QColor& other, double share)
{
    const auto mix = [share](float a, float b) { return a + (b - a) * static_cast<float>(share); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

bool IsDark(const QPalette& palette)
{
    return Luminance(palette.color(QPalette::Window)) <
           Luminance(palette.color(QPalette::WindowText));
}

QColor AccentColour(const QPalette& palette)
{
    const QColor background = palette.color(QPalette::Window);
    const QColor selection = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor wanted = selection.hslSaturationF() < 0.25F ? kBlue : selection;
    const QColor end = IsDark(palette) ? Qt::white : Qt::black;
    for (double share = 0; share < 1; share += 0.05)
        if (const QColor colour = Mixed(wanted, end, share);
            Contrast(colour, background) >= kMinContrast)
            return colour;
    return palette.color(QPalette::WindowText);
}

} // namespace quillon
