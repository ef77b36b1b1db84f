// Light or dark, as the desktop wishes. Where Qt has no theme for the desktop it knows nothing of
// that wish and stays light; then the desktop itself is asked.
#pragma once

#include <QPalette>

class QVariant;

namespace quillon {

/// Gives the program a dark palette where the desktop prefers one and Qt did not see it, and
/// outlines that can be seen (see `OutlineStyle`). To be called once, at the start.
void ApplyColourScheme();

QPalette DarkPalette();

/// What the desktop's settings portal answers to the question for its colour scheme: 1 is dark, 2
/// is light, 0 no wish, wrapped as the bus sends it.
bool IsDarkPreference(const QVariant& answer);

} // namespace quillon
