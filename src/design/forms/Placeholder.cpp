#include "design/forms/Placeholder.h"

#include "helpers/windows_path.h"
#include "ui/controls/picture.h"

#include <QPainter>

namespace quillon {

Placeholder::Placeholder(const FileSystem& files, const Text& toolFolder, const char* name)
    : picture_(LoadPicture(files, JoinPath(JoinPath(toolFolder, "Res"), name)).value_or(QImage()))
{
}

void Placeholder::Paint(QPainter& painter, const QRectF& room, double scale) const
{
    if (picture_.isNull() || room.isEmpty())
        return;
    QSizeF size = Size() * scale;
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room.size(), Qt::KeepAspectRatio);
    QRectF place({}, size);
    place.moveCenter(room.center());
    // On whole pixels its lines stay sharp.
    place.moveTopLeft(place.topLeft().toPoint());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture_);
}

void Placeholder::PaintAbove(const QString& words, QPainter& painter, const QRectF& room,
                             double scale) const
{
    constexpr double kGap = 6;
    constexpr double kLetters = 13;
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(kLetters * scale));
    painter.setFont(font);
    if (picture_.isNull())
        return painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, words);
    const QSizeF line = painter.boundingRect(room, Qt::AlignTop | Qt::AlignLeft, words).size();
    const double below = kGap * scale + line.height();
    const double height = Size().height() * scale + below;
    if (line.width() > room.width() || height > room.height())
        return Paint(painter, room, scale);
    const QRectF both(room.left(), room.center().y() - height / 2, room.width(), height);
    Paint(painter, both.adjusted(0, 0, 0, -below), scale);
    painter.drawText(both, Qt::AlignHCenter | Qt::AlignBottom, words);
}

} // namespace quillon
