#include "ui/look/icon_engine.h"

#include "ui/look/colours.h"

#include <QSvgRenderer>
#include <QtWidgets>

namespace quillon {

namespace {

// The two tones in which the files are drawn. A picture with colours of its own keeps them.
constexpr char kLineInFile[] = "#3b4252";
constexpr char kAccentInFile[] = "#1f7ae0";

struct Tones {
    QColor line;
    QColor accent;
};

Tones TonesOf(const QPalette& palette, QIcon::Mode mode)
{
    const QColor background = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    switch (mode) {
    case QIcon::Disabled:
        // Grey, and both tones alike, since the button is disabled.
        return {Mixed(background, text, 0.35), Mixed(background, text, 0.35)};
    case QIcon::Selected: {
        const QColor onSelection = palette.color(QPalette::Active, QPalette::HighlightedText);
        return {onSelection, onSelection};
    }
    default:
        // A little softer than the text, since lines look heavier than letters.
        return {Mixed(text, background, 0.15), AccentColour(palette)};
    }
}

QString FileOf(const QString& name)
{
    return ":/quillon/icons/" + name + ".svg";
}

QByteArray Drawing(const QString& name, const Tones& tones)
{
    QFile file(FileOf(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray drawing = file.readAll();
    drawing.replace(kLineInFile, tones.line.name().toLatin1());
    drawing.replace(kAccentInFile, tones.accent.name().toLatin1());
    return drawing;
}

QRectF SquareIn(const QRectF& rect)
{
    const double side = std::min(rect.width(), rect.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(rect.center());
    return square;
}

} // namespace

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                          QIcon::State state)
{
    const qreal scale = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    return scaledPixmap(size, mode, state, 1);
}

QPixmap SvgIconEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal)
{
    const Tones tones = TonesOf(QGuiApplication::palette(), mode);
    // The colours are part of the key, so that a change of palette makes new pictures.
    const QString key = QString("quillon/%1/%2x%3/%4/%5")
                            .arg(name_)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(tones.line.name(), tones.accent.name());
    QPixmap picture;
    if (QPixmapCache::find(key, &picture))
        return picture;
    picture = QPixmap(size);
    picture.fill(Qt::transparent);
    QSvgRenderer drawing(Drawing(name_, tones));
    if (!size.isEmpty()) {
        QPainter painter(&picture);
        drawing.render(&painter, SquareIn(picture.rect()));
    }
    QPixmapCache::insert(key, picture);
    return picture;
}

bool SvgIconEngine::isNull()
{
    return !QFile::exists(FileOf(name_));
}

} // namespace quillon
