// The rectangle that follows the mouse while an object of the design is dragged. It lies over
// everything and takes no clicks.
#pragma once

#include "design/dragging.h"

#include <QWidget>
#include <optional>

namespace quillon {

class DragRectFrame : public QWidget {
public:
    explicit DragRectFrame(QWidget* parent);

    /// Draws the rectangle, removing the last one; nothing removes it. `origin` is where the
    /// surface begins.
    void ShowRect(const std::optional<DragRect>& rect, QPoint origin);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect rect_;
};

} // namespace quillon
