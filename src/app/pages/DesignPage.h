// The tab "Design": the background of the setup as the author makes it.
#pragma once

#include "design/forms/DesignScreen.h"
#include "ui/kit/Page.h"

namespace quillon {

class DesignPage : public Page {
public:
    explicit DesignPage(Session& session);

    /// Another project is open, or the same one was read again: the next time that the session is
    /// shown it is laid out, on a hidden tab too, and all that can't be shown is reported.
    void BeginProject();
    void ShowSession() override;

    DesignScreen& Screen() { return *screen_; }

    /// Called once all objects are laid out again, which may have moved them inside the surface.
    std::function<void()> onLaidOut;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool HasSize() const;
    void LayOut();
    void LayOutSoon();
    void PlaceSurface(QSize page);

    DesignScreen* screen_;
    // The project has not been laid out yet. It is when the window has its size.
    bool isPending_ = true;
};

} // namespace quillon
