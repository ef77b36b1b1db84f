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

// A page behind another one shows its objects when it comes in front.
void DesignPage::ShowSession()
{
    screen_->DrawDesAll();
}

bool DesignPage::event(QEvent* event)
{
    // A page behind another one is not resized, but the size of the surface goes into the package.
    if (event->type() == QEvent::ParentChange && parentWidget()) {
        parentWidget()->installEventFilter(this);
        PlaceSurface(parentWidget()->size());
    }
    if (event->type() == QEvent::Show)
        screen_->DrawDesAll();
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
