// Draws a picture of ours in the colours of the palette of the moment, at the size in device pixels
// that is asked for.
#pragma once

#include <QIconEngine>

namespace quillon {

class SvgIconEngine : public QIconEngine {
public:
    /// `name` is that of a file in icons/, without its ending.
    explicit SvgIconEngine(const QString& name) : name_(name) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override;
    QIconEngine* clone() const override { return new SvgIconEngine(*this); }
    QString key() const override { return "quillon"; }
    QString iconName() override { return name_; }
    bool isNull() override;

private:
    QString name_;
};

} // namespace quillon
