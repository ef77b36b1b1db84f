// The window of a test: what the setup would show, to be read and closed.
#pragma once

#include "runtime/test_mode.h"

#include <windows.h>

namespace quillon {

/// Shows the window and waits until the user has closed it.
void ShowTestWindow(HINSTANCE instance, const TestWindow& shown);

} // namespace quillon
