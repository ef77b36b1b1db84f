// The display that the setup is shown on: the one with the pointer when its first window is shown.
// Its other windows follow the first one.
#pragma once

#include "design/canvas.h"

#include <windows.h>

namespace quillon {

/// In pixels of the desktop that all displays make up.
struct Display {
    PixelRect whole;
    PixelRect workArea; // without the task bar
};

Display DisplayWithPointer();
/// The one that most of the window is on, or the nearest to it where its own has been switched off.
Display DisplayOf(HWND window);

} // namespace quillon
