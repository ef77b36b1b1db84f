// A picture of the tool that is shown on the design screen for contents that only the setup shows.
#pragma once

#include "platform/file_system.h"

#include <QImage>

class QPainter;

namespace quillon {

class Placeholder {
public:
    /// `name` is a file in \Res. Where it can't be read nothing is painted.
    Placeholder(const FileSystem& files, const Text& toolFolder, const char* name);

    /// Paints it in the middle, smaller where the room is. `scale` is pixels per point.
    void Paint(QPainter& painter, const QRectF& room, double scale) const;
    /// The same with words below it where there is room for both; words alone without a picture.
    void PaintAbove(const QString& words, QPainter& painter, const QRectF& room,
                    double scale) const;

private:
    /// In points of the screen: the files have twice the pixels, for fine screens.
    QSizeF Size() const { return QSizeF(picture_.size()) / 2; }

    QImage picture_;
};

} // namespace quillon
