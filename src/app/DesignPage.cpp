#include "app/DesignPage.h"

#include "design/forms/design_commands.h"
#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

DesignPage::DesignPage(Session& session) : screen_(new DesignScreen(session))
{
    setObjectName("DesignPage");
    screen_->setParent(this);
    ConnectEditors(*screen_);
}

// Laying the objects out moves them inside the surface, which has no size of its own before it is
// seen for the first time. So a page behind another one does that when it comes in front.
void DesignPage::ShowSession()
{
    if (isVisible()) {
        screen_->DrawDesAll();
        if (onLaidOut)
            onLaidOut();
        return;
    }
    screen_->DrawDesBackground();
    screen_->DrawDesTitle();
    screen_->HideDesObjects();
}

bool DesignPage::event(QEvent* event)
{
    // A page behind another one is not resized, but the size of the surface goes into the package.
    if (event->type() == QEvent::ParentChange && parentWidget()) {
        parentWidget()->installEventFilter(this);
        PlaceSurface(parentWidget()->size());
    }
    if (event->type() == QEvent::Show) {
        screen_->DrawDesBackground();
        screen_->DrawDesTitle();
        // A window that opens with this tab in front gets its size only behind this event, and
        // objects are moved inside the surface that there is.
        QMetaObject::invokeMethod(
            this, [this] { ShowSession(); }, Qt::QueuedConnection);
    }
    if (event->type() == QEvent::Hide)
        screen_->HideDesObjects();
    return Page::event(event);
}

bool DesignPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == parentWidget())
        PlaceSurface(parentWidget()->size());
    return Page::eventFilter(watched, event);
}

void DesignPage::PlaceSurface(QSize page)
{
    screen_->setGeometry(QRect({0, 0}, page));
    screen_->PlaceSurface(page, style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this));
}

} // namespace quillon
