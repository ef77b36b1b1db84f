// Shift+F10 opens the menu of what has the keyboard, as the menu key does; many keyboards lack that
// key, and Qt knows it alone.
#pragma once

class QCoreApplication;

namespace quillon {

/// In all windows of the program, from now on.
void OpenMenusByShiftF10(QCoreApplication& application);

} // namespace quillon
