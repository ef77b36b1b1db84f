#include "ui/kit/fit_screen.h"

#include <QtWidgets>

namespace quillon {

namespace {

// The usual size of a window's frame in points. The frame of a window itself is known too late.
constexpr QMargins kUsualFrame(4, 40, 4, 4);

QMargins FrameOf(const QWidget& window)
{
    // The frames of a program's windows are alike.
    QMargins frame = kUsualFrame;
    for (const QWidget* widget = &window; widget; widget = widget->parentWidget())
        if (const QWindow* shown = widget->windowHandle())
            frame = frame | shown->frameMargins();
    return frame;
}

class ScrollArea : public QScrollArea {
public:
    explicit ScrollArea(QWidget* parent) : QScrollArea(parent)
    {
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        // An access letter may move the focus to a control that is out of view.
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
            if (now && isAncestorOf(now))
                BringIntoView(*now);
        });
    }

    void Show(QWidget* contents)
    {
        setWidget(contents);
        // What is behind the area shows through, such as the background of a tab.
        viewport()->setAutoFillBackground(false);
        contents->setAutoFillBackground(false);
    }

    QSize sizeHint() const override { return widget()->sizeHint() + QSize(BarWidth(), BarWidth()); }

    /// Wide enough that lines are read without scrolling to and fro, as far as the window lets it.
    int WidthOfContents() const { return widget()->minimumSizeHint().width() + BarWidth(); }

protected:
    bool focusNextPrevChild(bool next) override
    {
        // Not QScrollArea's version, whose scrolling pushes captions out of sight.
        return QAbstractScrollArea::focusNextPrevChild(next);
    }

private:
    /// Scrolls sideways only where nothing of the control could be seen.
    void BringIntoView(QWidget& control)
    {
        const int before = horizontalScrollBar()->value();
        ensureWidgetVisible(&control);
        const QRect shape(control.mapTo(widget(), QPoint(0, 0)), control.size());
        if (shape.right() > before && shape.left() < before + viewport()->width())
            horizontalScrollBar()->setValue(before);
    }

    int BarWidth() const { return verticalScrollBar()->sizeHint().width(); }
};

bool HasButtonsAlone(const QList<QWidget*>& widgets)
{
    return std::ranges::all_of(
        widgets, [](const QWidget* widget) { return widget->inherits("QPushButton"); });
}

QList<QWidget*> WidgetsOf(const QLayout& row)
{
    QList<QWidget*> widgets;
    for (int i = 0; i < row.count(); ++i)
        if (QWidget* widget = row.itemAt(i)->widget())
            widgets << widget;
    return widgets;
}

/// Takes the row of buttons, if there is one, from the end of one column to the end of another.
void MoveButtons(QLayout& from, QBoxLayout& to)
{
    const int last = from.count() - 1;
    if (last < 0 || !qobject_cast<QVBoxLayout*>(&from))
        return;
    auto* row = qobject_cast<QHBoxLayout*>(from.itemAt(last)->layout());
    QWidget* box = from.itemAt(last)->widget();
    if (row && HasButtonsAlone(WidgetsOf(*row))) {
        const QMargins margins = from.contentsMargins();
        const int spacing = row->spacing();
        from.takeAt(last);
        row->setContentsMargins(margins.left(), margins.top() / 2, margins.right(),
                                margins.bottom());
        row->setSpacing(spacing);
        to.addLayout(row);
    } else if (box && box->layout() && HasButtonsAlone(WidgetsOf(*box->layout()))) {
        from.removeWidget(box);
        to.addWidget(box);
    }
}

void ScrollContents(QWidget& window, const QSize& room)
{
    QWidget* const focus = window.focusWidget();
    QLayout* const whole = window.layout();
    // Inside the window from the start, so that the Tab order of the controls stays the same.
    auto* area = new ScrollArea(&window);
    auto* contents = new QWidget(area);
    area->Show(contents);
    contents->setLayout(whole);
    auto* outer = new QVBoxLayout(&window);
    outer->setContentsMargins({});
    outer->setSpacing(0);
    outer->addWidget(area);
    MoveButtons(*whole, *outer);
    area->setMinimumWidth(std::min(area->WidthOfContents(), room.width()));
    // What the former layout, or running text in it, asked for.
    window.setMinimumSize(0, 0);
    window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    outer->activate();
    if (focus)
        focus->setFocus();
}

/// The size that the window opens with, as its contents wish.
QSize WishedSize(const QWidget& window)
{
    if (window.testAttribute(Qt::WA_Resized))
        return window.size();
    const QLayout& layout = *window.layout();
    const QSize size = layout.totalSizeHint();
    return layout.hasHeightForWidth()
               ? QSize(size.width(),
                       std::max(size.height(), layout.totalHeightForWidth(size.width())))
               : size;
}

QSize MinSizeOf(const QWidget& window, int width)
{
    const QLayout& layout = *window.layout();
    const QSize minSize = layout.totalMinimumSize();
    const int height = layout.hasHeightForWidth()
                           ? layout.totalMinimumHeightForWidth(std::max(width, minSize.width()))
                           : minSize.height();
    return {minSize.width(), std::max(minSize.height(), height)};
}

} // namespace

QSize RoomOnScreen(const QWidget& window)
{
    return window.screen()->availableGeometry().marginsRemoved(FrameOf(window)).size();
}

void FitInto(QWidget& window, const QSize& room)
{
    if (!window.layout())
        return;
    const QSize wished = WishedSize(window).boundedTo(room);
    const QSize minSize = MinSizeOf(window, wished.width());
    if (minSize.width() > room.width() || minSize.height() > room.height()) {
        ScrollContents(window, room);
        window.resize(WishedSize(window).boundedTo(room));
    } else if (wished != WishedSize(window)) {
        window.resize(wished.expandedTo(minSize));
    }
}

QWidget* Scrolled(QWidget* contents)
{
    auto* area = new ScrollArea(nullptr);
    area->Show(contents);
    return area;
}

} // namespace quillon
