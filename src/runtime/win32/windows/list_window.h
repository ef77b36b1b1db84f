// The window of a list that the user reads: a text, the lines, and a button or two.
#pragma once

#include "runtime/list_page.h"

#include <windows.h>

namespace quillon {

/// The ids of its controls; its buttons are IDOK and IDCANCEL.
inline constexpr int kListTextId = 101;
inline constexpr int kListLinesId = 102;

/// Until the user has pressed a button or closed the window; true for the first button.
bool ShowListWindow(HINSTANCE instance, const ListPage& page);

} // namespace quillon
