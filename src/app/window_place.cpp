#include "app/window_place.h"

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

} // namespace

void RestoreWindowPlace(QMainWindow& window, const WindowPlace& place)
{
    const QSize screen = window.screen()->availableSize();
    const QSize size =
        place.Width > 0 ? QSize(place.Width, place.Height) : FirstSize(window, screen);
    window.resize(size.boundedTo(screen));
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
    place.Width = Length(normal.width());
    place.Height = Length(normal.height());
}

} // namespace quillon
