// The painter of the preview surface: a blend of two colours, or a picture.
#pragma once

#include "design/surface.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace quillon {

/// The blend in whole pixels of the screen.
QImage BlendImage(QSize size, const SurfacePaint& paint);

class ColorblendBackground : public QWidget {
public:
    ColorblendBackground();

    /// `picture` is shown where the paint says that one is used.
    void Show(const SurfacePaint& paint, QImage picture = {});

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap MakeShown(QSize pixels) const;

    SurfacePaint paint_;
    QImage picture_;
    // What was painted last; a blend takes longer than a copy.
    QPixmap shown_;
};

} // namespace quillon
