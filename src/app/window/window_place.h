// The main window where its user left it, on a screen that may be another one by now.
#pragma once

#include "shell/settings.h"

class QMainWindow;

namespace quillon {

/// Before the window is shown. One that was never placed gets a good part of the screen.
void RestoreWindowPlace(QMainWindow& window, const WindowPlace& place);

void KeepWindowPlace(const QMainWindow& window, WindowPlace& place);

} // namespace quillon
