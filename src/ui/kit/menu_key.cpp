#include "ui/kit/menu_key.h"

#include <QtWidgets>

namespace quillon {

namespace {

class MenuKey : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_F10 || key->modifiers() != Qt::ShiftModifier)
            return false;
        // The window finds the widget with the focus and the place of the menu.
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, {}, {}, {});
        QCoreApplication::sendEvent(static_cast<QWidget*>(watched)->window()->windowHandle(),
                                    &menu);
        return true;
    }
};

} // namespace

void OpenMenusByShiftF10(QCoreApplication& application)
{
    application.installEventFilter(new MenuKey(&application));
}

} // namespace quillon
