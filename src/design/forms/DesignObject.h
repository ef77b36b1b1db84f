// An object of the design on its surface: it is dragged with the mouse or moved with the arrow
// keys, and opens its editor on a double click or Enter.
#pragma once

#include "design/dragging.h"

#include <QWidget>
#include <functional>
#include <optional>

namespace quillon {

class DesignObject : public QWidget {
public:
    DesignObject(const char* name, const Text& accessibleName, QWidget* parent);

    /// What an object asks its window for, and what it calls there.
    struct Surround {
        std::function<SurfacePlace()> surface;
        ScreenMetrics screen;
        // Draws the rectangle of a drag in the place of the last one; nothing removes it.
        std::function<void(const std::optional<DragRect>&)> showDragRect;
    };
    /// An object with an empty `onMoved` can't be moved. `onMoved` gets the new place, which is not
    /// yet moved inside the surface.
    void Connect(Surround surround, std::function<void(const SurfacePlace&)> onMoved,
                 std::function<void()> onEdit);

    void PlaceAt(const SurfacePlace& place);
    const SurfacePlace& Place() const { return place_; }

    /// Paints the inside in pixels of the screen, `scale` of which are one of the window's.
    std::function<void(QImage&, double scale)> paint;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool MoveByKey(int key, Qt::KeyboardModifiers modifiers);
    void EndDrag();

    Surround surround_;
    std::function<void(const SurfacePlace&)> onMoved_;
    std::function<void()> onEdit_;
    SurfacePlace place_;
    std::optional<DesDrag> drag_;
};

} // namespace quillon
