// Qt's own style outlines fields, boxes and options in a shade of the window's colour, which is
// hard to see on a dark one. This style uses a colour with enough contrast to what is round the
// outline and inside it.
#pragma once

#include <QColor>
#include <QProxyStyle>
#include <map>

class QPalette;

namespace quillon {

class OutlineStyle : public QProxyStyle {
public:
    OutlineStyle() : QProxyStyle("Fusion") {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

private:
    template <class Option>
    bool DrawOutlined(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                      const QWidget* widget) const;
    const QPalette& Outlined(const QPalette& palette) const;

    // By the key of the palette that they were made from; a program has but a few.
    mutable std::map<qint64, QPalette> outlined_;
};

} // namespace quillon
