#include "ui/look/outline_style.h"

#include "ui/look/colours.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr std::size_t kMaxPalettes = 64;

QColor OutlineColour(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::WindowText);
    for (double share = 0.2; share < 1; share += 0.02) {
        const QColor colour = Mixed(window, text, share);
        if (Contrast(colour, window) >= kMinContrast && Contrast(colour, base) >= kMinContrast)
            return colour;
    }
    return text;
}

bool HasOutline(QStyle::PrimitiveElement element, const QWidget* widget)
{
    switch (element) {
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_Frame:
        return true;
    case QStyle::PE_PanelButtonCommand:
        return qobject_cast<const QComboBox*>(widget) != nullptr;
    default:
        return false;
    }
}

} // namespace

const QPalette& OutlineStyle::Outlined(const QPalette& palette) const
{
    if (const auto found = outlined_.find(palette.cacheKey()); found != outlined_.end())
        return found->second;
    if (outlined_.size() >= kMaxPalettes)
        outlined_.clear();
    // Fusion takes the window's colour, darkened by this, for an outline, and the selection's for
    // what has the keyboard.
    constexpr int kDarkenedBy = 140;
    QPalette changed = palette;
    changed.setColor(QPalette::Window, OutlineColour(palette).lighter(kDarkenedBy));
    changed.setColor(QPalette::Highlight, AccentColour(palette));
    return outlined_.emplace(palette.cacheKey(), changed).first->second;
}

template <class Option>
bool OutlineStyle::DrawOutlined(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const
{
    const auto* given = qstyleoption_cast<const Option*>(option);
    if (!given)
        return false;
    Option outlined = *given;
    outlined.palette = Outlined(given->palette);
    QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    return true;
}

void OutlineStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const
{
    const bool isOutlined = HasOutline(element, widget) && (option->state & State_Enabled) &&
                            (DrawOutlined<QStyleOptionButton>(element, option, painter, widget) ||
                             DrawOutlined<QStyleOptionFrame>(element, option, painter, widget) ||
                             DrawOutlined<QStyleOptionViewItem>(element, option, painter, widget));
    if (!isOutlined)
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

} // namespace quillon
