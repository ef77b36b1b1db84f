// The tab "Design": the background of the setup as the author makes it.
#pragma once

#include "design/forms/DesignScreen.h"
#include "ui/Page.h"

namespace quillon {

class DesignPage : public Page {
public:
    explicit DesignPage(Session& session);

    void ShowSession() override;

    DesignScreen& Screen() { return *screen_; }

    /// Called once all objects are laid out anew, which may have moved them inside the surface.
    std::function<void()> onLaidOut;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PlaceSurface(QSize page);

    DesignScreen* screen_;
};

} // namespace quillon
