// The four looks of menu bar and toolbar, drawn in the colours of the desktop's palette.
#pragma once

#include "shell/settings.h"

#include <QString>

class QMainWindow;
class QPalette;

namespace quillon {

/// Gives the window's bars this look, and keeps them in it when the palette or the font changes. A
/// number that is no look gives the one of a new machine.
void ApplyBarsLook(QMainWindow& window, BarsStyle style);

/// The style sheet of a look.
QString BarsStyleSheet(BarsStyle style, const QPalette& palette);

} // namespace quillon
