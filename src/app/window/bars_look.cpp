#include "app/window/bars_look.h"

#include "ui/look/colours.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr char kWatchName[] = "BarsLook";

// What a look is made of, as the style sheet has it: backgrounds and borders.
struct Look {
    QString bar;          // after the buttons
    QString barEdge;      // below them
    QString menu;         // after the entries
    QString menuEdge;     // round them
    QString hover;        // under the pointer
    QString hoverEdge;    // its border
    QString pressed;      // under a button that is held down
    QString pressedEdge;  // its border
    QString radius = "0"; // of the corners of a button
};

QString Solid(const QColor& colour)
{
    return colour.name();
}

QString Falling(const QColor& top, const QColor& bottom)
{
    return QString("qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:1 %2)")
        .arg(top.name(), bottom.name());
}

QString Line(const QColor& colour)
{
    return "1px solid " + colour.name();
}

/// A bevel: one colour above and to the left, another below and to the right.
QString Bevel(const QColor& upper, const QColor& lower)
{
    return QString("1px solid; border-color: %1 %2 %2 %1").arg(upper.name(), lower.name());
}

// The colours that all looks mix theirs from.
struct BaseColours {
    QColor window;
    QColor base;
    QColor text;
    QColor accent;
    QColor light; // one step towards white and towards black
    QColor shade;
};

BaseColours BaseColoursOf(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const bool dark = IsDark(palette);
    return {window,
            palette.color(QPalette::Active, QPalette::Base),
            palette.color(QPalette::Active, QPalette::WindowText),
            AccentColour(palette),
            Mixed(window, Qt::white, dark ? 0.32 : 0.85),
            Mixed(window, Qt::black, dark ? 0.6 : 0.45)};
}

// Bars without gradients, buttons with rounded corners and a shade.
Look WindowsXpLook(const BaseColours& g)
{
    return {.bar = Solid(Mixed(g.window, g.light, 0.3)),
            .barEdge = Line(Mixed(g.window, g.shade, 0.4)),
            .menu = Solid(g.base),
            .menuEdge = Line(Mixed(g.window, g.text, 0.4)),
            .hover = Falling(Mixed(g.window, g.light, 0.9), Mixed(g.window, g.text, 0.1)),
            .hoverEdge = Line(Mixed(g.window, g.text, 0.3)),
            .pressed = Solid(Mixed(g.window, g.text, 0.18)),
            .pressedEdge = Line(Mixed(g.window, g.text, 0.45)),
            .radius = "0.25em"};
}

// Flat until the pointer comes, then raised; sunken when pressed.
Look Office2000Look(const BaseColours& g)
{
    return {.bar = Solid(g.window),
            .barEdge = Bevel(g.light, g.shade),
            .menu = Solid(g.window),
            .menuEdge = Bevel(g.light, g.shade),
            .hover = Solid(g.window),
            .hoverEdge = Bevel(g.light, g.shade),
            .pressed = Solid(Mixed(g.window, g.shade, 0.15)),
            .pressedEdge = Bevel(g.shade, g.light)};
}

// Flat, with an outline in the accent.
Look OfficeXpLook(const BaseColours& g)
{
    return {.bar = Solid(Mixed(g.window, g.text, 0.04)),
            .barEdge = Line(Mixed(g.window, g.text, 0.04)),
            .menu = Solid(g.base),
            .menuEdge = Line(Mixed(g.window, g.text, 0.55)),
            .hover = Solid(Mixed(g.base, g.accent, 0.22)),
            .hoverEdge = Line(g.accent),
            .pressed = Solid(Mixed(g.base, g.accent, 0.42)),
            .pressedEdge = Line(g.accent)};
}

// Bars that fall from light to the accent, warm under the pointer.
Look Office2003Look(const BaseColours& g)
{
    const QColor amber(0xff, 0xb0, 0x40);
    const QColor tinted = Mixed(g.window, g.accent, 0.3);
    return {.bar = Falling(Mixed(g.light, g.accent, 0.08), tinted),
            .barEdge = Line(Mixed(g.window, g.accent, 0.55)),
            .menu = Solid(g.base),
            .menuEdge = Line(Mixed(g.window, g.accent, 0.7)),
            .hover = Falling(Mixed(g.base, amber, 0.2), Mixed(g.base, amber, 0.45)),
            .hoverEdge = Line(Mixed(amber, g.text, 0.35)),
            .pressed = Falling(Mixed(g.base, amber, 0.6), Mixed(g.base, amber, 0.4)),
            .pressedEdge = Line(Mixed(amber, g.text, 0.5)),
            .radius = "0.15em"};
}

Look LookOf(BarsStyle style, const BaseColours& base)
{
    switch (style) {
    case BarsStyle::WindowsXP:
        return WindowsXpLook(base);
    case BarsStyle::Office2000:
        return Office2000Look(base);
    case BarsStyle::OfficeXP:
        return OfficeXpLook(base);
    default:
        return Office2003Look(base);
    }
}

// %1 text, %2 text of what is off, %3 lines between groups, then the look from %4 on. Sizes are in
// letters, so that they grow with the font; borders keep their place while they are not seen.
constexpr char kSheet[] = R"(
QMenuBar { background: %4; color: %1; border: none; border-bottom: %5; padding: 0.1em; }
QMenuBar::item { background: transparent; padding: 0.25em 0.6em; margin: 0;
  border: 1px solid transparent; border-radius: %12; }
QMenuBar::item:selected { background: %8; border: %9; }
QMenuBar::item:pressed { background: %10; border: %11; }
QMenu { background: %6; color: %1; border: %7; padding: 0.15em; }
QMenu::item { background: transparent; padding: 0.3em 1.6em 0.3em 0.5em;
  border: 1px solid transparent; border-radius: %12; }
QMenu::item:selected { background: %8; border: %9; }
QMenu::item:disabled { color: %2; }
QMenu::item:disabled:selected { background: transparent; border: 1px solid %3; }
QMenu::icon { padding-left: 0.5em; }
QMenu::separator { height: 1px; background: %3; margin: 0.25em 0.5em; }
QToolBar { background: %4; border: none; border-bottom: %5; padding: 0.15em; spacing: 0.1em; }
QToolBar::separator { background: %3; width: 1px; margin: 0.2em 0.35em; }
QToolBar QToolButton { background: transparent; padding: 0.15em; border: 1px solid transparent;
  border-radius: %12; }
QToolBar QToolButton:hover:enabled, QToolBar QToolButton:focus { background: %8; border: %9; }
QToolBar QToolButton:pressed { background: %10; border: %11; }
)";

void ShowLook(QMainWindow& window, BarsStyle style)
{
    const QString sheet = BarsStyleSheet(style, QApplication::palette());
    window.menuBar()->setStyleSheet(sheet);
    // 24 pixels beside letters of the usual size.
    const int side = std::max(24, window.fontMetrics().height() * 3 / 2);
    for (QToolBar* bar : window.findChildren<QToolBar*>(Qt::FindDirectChildrenOnly)) {
        bar->setStyleSheet(sheet);
        bar->setIconSize({side, side});
    }
}

/// Belongs to the window and sets the look of its bars again after a change of palette or font.
class BarsWatch : public QObject {
public:
    explicit BarsWatch(QMainWindow& window) : QObject(&window), window_(window)
    {
        setObjectName(kWatchName);
        window.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::ApplicationPaletteChange ||
            event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
            ShowLook(window_, style);
        return false;
    }

    BarsStyle style = BarsStyle::Office2003;

private:
    QMainWindow& window_;
};

} // namespace

QString BarsStyleSheet(BarsStyle style, const QPalette& palette)
{
    const BaseColours base = BaseColoursOf(palette);
    const Look look = LookOf(style, base);
    const QString off = Mixed(base.window, base.text, 0.5).name();
    const QString between = Mixed(base.window, base.text, 0.22).name();
    QString sheet = kSheet;
    // After to front, since "%1" is a part of "%12".
    const QString parts[] = {base.text.name(), off,          between,          look.bar,
                             look.barEdge,     look.menu,    look.menuEdge,    look.hover,
                             look.hoverEdge,   look.pressed, look.pressedEdge, look.radius};
    for (int i = static_cast<int>(std::size(parts)); i >= 1; --i)
        sheet.replace('%' + QString::number(i), parts[i - 1]);
    return sheet;
}

void ApplyBarsLook(QMainWindow& window, BarsStyle style)
{
    auto* watch =
        static_cast<BarsWatch*>(window.findChild<QObject*>(kWatchName, Qt::FindDirectChildrenOnly));
    if (!watch)
        watch = new BarsWatch(window);
    watch->style = style;
    ShowLook(window, style);
}

} // namespace quillon
