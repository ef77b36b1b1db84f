// What is to be seen of another program's window: its texts, its picture, and what does not fit.
#pragma once

#include "helpers/text.h"

#include <string>
#include <vector>
#include <windows.h>

namespace quillon {

std::wstring TextOf(HWND window);
std::wstring KindOf(HWND window);

/// What is inside the frame, as a file.
Text BitmapOf(HWND window);

/// The controls whose text does not fit into them, or that stick out of the window, on a display of
/// that scale.
std::vector<HWND> ClippedControls(HWND window, int dpi);

} // namespace quillon
