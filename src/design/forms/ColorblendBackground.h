// The painter of the preview surface: a blend of two colours or a picture, and the title on it.
#pragma once

#include "design/background_painter.h"
#include "design/title_block.h"

#include <QImage>
#include <QWidget>

namespace quillon {

class ColorblendBackground : public QWidget {
public:
    explicit ColorblendBackground(Letters& letters);

    /// `picture` is shown where the paint says that one is used.
    void Show(const SurfacePaint& paint, ScalablePicture picture = {});
    void ShowTitle(const section::DesTitle& title, const section::DesTitleUnderline& underline,
                   const section::DesSubTitle& subTitle);

    /// What is kept of the picture, in bytes.
    std::int64_t PictureMemory() const { return picture_.Memory(); }

    /// The pixel row below the title block.
    int TitleBottom() const;

    /// Called with a place in pixels of the surface.
    std::function<void(QPoint)> onDoubleClick;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QImage MakeShown(QSize pixels) const;
    TitleRecords Records() const { return {title_, underline_, subTitle_}; }

    Letters& letters_;
    SurfacePaint paint_;
    ScalablePicture picture_;
    section::DesTitle title_;
    section::DesTitleUnderline underline_;
    section::DesSubTitle subTitle_;
    // What was painted last: an object that is dragged uncovers a part of it.
    QImage shown_;
    // The press before a double click is the one that counts.
    QPoint pressed_;
};

} // namespace quillon
