#include "support/window_looks.h"

#include <QtWidgets>
#include <map>

namespace quillon::test {

namespace {

using Faults = std::vector<std::string>;

std::string NameOf(const QWidget& widget)
{
    const QString name = widget.objectName();
    const std::string kind = widget.metaObject()->className();
    return name.isEmpty() ? kind + " without a name" : kind + " " + name.toStdString();
}

QList<QWidget*> WidgetsInView(const QWidget& window)
{
    QList<QWidget*> inView;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisibleTo(&window) && widget->window() == &window)
            inView << widget;
    return inView;
}

/// Parts that Qt makes inside its own widgets and that answer for these.
bool IsPartOfAnother(const QWidget& widget)
{
    return widget.focusProxy() ||
           (widget.parentWidget() && widget.parentWidget()->focusProxy() == &widget) ||
           widget.inherits("QTabBar");
}

/// The size that the caption of a widget needs; an empty one where the widget has none, or is made
/// to shorten it.
QSize RoomOfCaption(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        const bool isShortened = label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        if (label->text().isEmpty() || isShortened)
            return {};
        if (label->wordWrap())
            return {0, label->heightForWidth(label->width())};
        return label->sizeHint();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text().isEmpty() ? QSize() : button->sizeHint();
    if (const auto* list = qobject_cast<const QComboBox*>(&widget))
        return list->isEditable() ? QSize() : list->minimumSizeHint();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget))
        return frame->minimumSizeHint();
    return {};
}

/// The access letter of a caption, in lower case; empty where it has none.
QString LetterOf(const QString& caption)
{
    const QKeySequence keys = QKeySequence::mnemonic(caption);
    return keys.isEmpty() ? QString() : keys.toString().section('+', -1).toLower();
}

QString CaptionWithLetter(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->buddy() ? label->text() : QString();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget))
        return frame->title();
    return {};
}

QRect PlaceIn(const QWidget& window, const QWidget& widget)
{
    return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

QList<QWidget*> TabOrder(QWidget& window)
{
    QList<QWidget*> order;
    for (QWidget* widget = window.nextInFocusChain(); widget != &window;
         widget = widget->nextInFocusChain())
        if (widget->isVisibleTo(&window) && widget->window() == &window &&
            (widget->focusPolicy() & Qt::TabFocus) && !IsPartOfAnother(*widget))
            order << widget;
    return order;
}

/// Columns are gone through one after the other, so a step upwards may lead to the right.
bool IsStepBack(const QRect& from, const QRect& to)
{
    const bool isSameLine = to.top() <= from.bottom() && from.top() <= to.bottom();
    return to.left() <= from.left() && (isSameLine || to.bottom() < from.top());
}

/// The captions by their access letter.
class Letters {
public:
    void Add(const QString& caption)
    {
        if (const QString letter = LetterOf(caption); !letter.isEmpty())
            captions_[letter] << caption;
    }

    Faults Shared() const
    {
        Faults faults;
        for (const auto& [letter, captions] : captions_)
            if (captions.size() > 1)
                faults.push_back(letter.toStdString() + ": " + captions.join(", ").toStdString());
        return faults;
    }

private:
    std::map<QString, QStringList> captions_;
};

} // namespace

Faults UnnamedControls(QWidget& window)
{
    Faults faults;
    for (QWidget* widget : WidgetsInView(window)) {
        if (widget->focusPolicy() == Qt::NoFocus || IsPartOfAnother(*widget))
            continue;
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        if (!accessible || accessible->text(QAccessible::Name).trimmed().isEmpty())
            faults.push_back(NameOf(*widget));
    }
    return faults;
}

Faults CutCaptions(QWidget& window)
{
    Faults faults;
    for (QWidget* widget : WidgetsInView(window)) {
        const QSize room = RoomOfCaption(*widget);
        if (room.width() <= widget->width() && room.height() <= widget->height())
            continue;
        faults.push_back(NameOf(*widget) + " needs " + std::to_string(room.width()) + " x " +
                         std::to_string(room.height()) + " and has " +
                         std::to_string(widget->width()) + " x " +
                         std::to_string(widget->height()));
    }
    return faults;
}

Faults SharedAccessLetters(QWidget& window)
{
    Letters letters;
    for (QWidget* widget : WidgetsInView(window))
        letters.Add(CaptionWithLetter(*widget));
    if (auto* menuBar = window.findChild<QMenuBar*>())
        for (const QAction* menu : menuBar->actions())
            letters.Add(menu->text());
    return letters.Shared();
}

Faults StepsBackByTab(QWidget& window)
{
    Faults faults;
    const QList<QWidget*> order = TabOrder(window);
    for (qsizetype i = 1; i < order.size(); ++i)
        if (IsStepBack(PlaceIn(window, *order[i - 1]), PlaceIn(window, *order[i])))
            faults.push_back(NameOf(*order[i - 1]) + " before " + NameOf(*order[i]));
    return faults;
}

Faults SharedMenuLetters(QWidget& window)
{
    Faults faults;
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        // What a toolbar has no room for comes from several menus.
        if (qobject_cast<QToolBar*>(menu->parent()))
            continue;
        Letters letters;
        for (const QAction* entry : menu->actions())
            letters.Add(entry->text());
        const Faults shared = letters.Shared();
        faults.insert(faults.end(), shared.begin(), shared.end());
    }
    return faults;
}

} // namespace quillon::test
