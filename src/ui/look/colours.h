// Colours that follow from a palette: what icons, bars and marks are drawn in, on light and dark.
#pragma once

#include <QColor>

class QPalette;

namespace quillon {

/// The contrast of two colours: 1 is not at all, 21 is black on white. From 3 on a
/// line can be seen on its background, from 4.5 on a text can be read.
double Contrast(const QColor& one, const QColor& other);

/// Of lines and marks to what is behind them. Some controls are drawn in a somewhat lighter or
/// darker shade, which still has 3.
inline constexpr double kMinContrast = 4;

/// `share` of `other`, the rest of `one`.
QColor Mixed(const QColor& one, const QColor& other, double share);

bool IsDark(const QPalette& palette);

/// The palette's colour for what is selected, as light or dark as it must be to be distinguished
/// from the window's background.
QColor AccentColour(const QPalette& palette);

} // namespace quillon
