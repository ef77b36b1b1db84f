#include "app/pages/DesignPage.h"

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

void DesignPage::BeginProject()
{
    screen_->BeginProject();
    isPending_ = true;
}

// While the tab is hidden, only a project that has just been opened is laid out; everything else
// waits until the tab is shown.
void DesignPage::ShowSession()
{
    if (isPending_ || isVisible())
        LayOut();
}

/// A hidden page has its size as soon as the window is on the screen; before that, a window that
/// opens maximized is smaller.
bool DesignPage::HasSize() const
{
    const QWindow* window = this->window()->windowHandle();
    return isVisible() || (parentWidget() && window && window->isExposed());
}

// Laying the objects out moves them inside the surface, which has the same size on a hidden tab
// as in front: a project that is opened and saved is the same whether its design was looked at or
// not.
void DesignPage::LayOut()
{
    isPending_ = !HasSize();
    if (isPending_) {
        screen_->DrawDesBackground();
        screen_->DrawDesTitle();
    } else {
        screen_->DrawDesAll();
    }
    if (!isVisible())
        screen_->HideDesObjects();
    if (!isPending_ && onLaidOut)
        onLaidOut();
}

void DesignPage::LayOutSoon()
{
    QMetaObject::invokeMethod(
        this, [this] { LayOut(); }, Qt::QueuedConnection);
}

bool DesignPage::event(QEvent* event)
{
    // A hidden page is not resized, but the size of the surface goes into the package.
    if (event->type() == QEvent::ParentChange && parentWidget()) {
        parentWidget()->installEventFilter(this);
        PlaceSurface(parentWidget()->size());
    }
    // After this event, since it may have to report a picture.
    if (event->type() == QEvent::Show)
        LayOutSoon();
    if (event->type() == QEvent::Hide)
        screen_->HideDesObjects();
    return Page::event(event);
}

bool DesignPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == parentWidget())
        PlaceSurface(parentWidget()->size());
    QWindow* const window = this->window()->windowHandle();
    if (event->type() == QEvent::Show && watched == parentWidget() && window)
        window->installEventFilter(this);
    if (event->type() == QEvent::Expose && watched == window && isPending_)
        LayOutSoon();
    return Page::eventFilter(watched, event);
}

void DesignPage::PlaceSurface(QSize page)
{
    screen_->setGeometry(QRect({0, 0}, page));
    screen_->PlaceSurface(page, style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this));
}

} // namespace quillon
