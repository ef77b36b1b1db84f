// The picture at the left of a setup's page: as high as the page, without a frame, its shape kept.
#pragma once

#include "ui/controls/PictureView.h"

namespace quillon {

class SidePicture : public PictureView {
public:
    explicit SidePicture(QSize size);

    void ShowPicture(const QImage& picture);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
