// Windows that stay whole on small screens: their frame, their buttons and their status bar in
// view, and what there is no room for to be scrolled to.
#pragma once

#include <QSize>

class QWidget;

namespace quillon {

/// What the window's screen leaves for its contents, inside the frame.
QSize RoomOnScreen(const QWidget& window);

/// For a window that was not shown yet: makes it no larger than `room`. Where its contents need
/// more, they scroll from now on, all but the row of buttons at its end.
void FitInto(QWidget& window, const QSize& room);

/// The widget in an area that scrolls where there is less room than it needs.
QWidget* Scrolled(QWidget* contents);

} // namespace quillon
