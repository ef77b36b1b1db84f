#include "app/window/window_place.h"

#include "ui/kit/fit_screen.h"

#include <QtWidgets>

namespace quillon {

namespace {

/// Wide enough for the file list, and never the whole of a large screen.
QSize FirstSize(const QMainWindow& window, const QSize& screen)
{
    const int letter = window.fontMetrics().averageCharWidth();
    const QSize comfortable(letter * 175, letter * 110);
    return comfortable.expandedTo(screen * 0.6);
}

Integer Length(int pixels)
{
    return static_cast<Integer>(std::clamp<int>(pixels, 0, std::numeric_limits<Integer>::max()));
}

/// The length to come back to. A screen that has no room for the former one takes nothing of it as
/// long as the window fills that screen.
Integer Kept(Integer former, int pixels, int room)
{
    return former > room && pixels * 10 >= room * 9 ? former : Length(pixels);
}

} // namespace

void RestoreWindowPlace(QMainWindow& window, const WindowPlace& place)
{
    const QSize room = RoomOnScreen(window);
    const QSize size = place.Width > 0 ? QSize(place.Width, place.Height) : FirstSize(window, room);
    window.resize(size.boundedTo(room));
    if (place.Maximized != kOff)
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

void KeepWindowPlace(const QMainWindow& window, WindowPlace& place)
{
    place.Maximized = window.isMaximized() ? kOn : kOff;
    // Of a maximised window, the size that it goes back to.
    const QRect normal = window.isMaximized() ? window.normalGeometry() : window.geometry();
    if (normal.isEmpty())
        return;
    const QSize room = RoomOnScreen(window);
    place.Width = Kept(place.Width, normal.width(), room.width());
    place.Height = Kept(place.Height, normal.height(), room.height());
}

} // namespace quillon
