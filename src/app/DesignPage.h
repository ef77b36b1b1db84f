// The tab "Design": the background of the setup as the author makes it.
#pragma once

#include "design/surface.h"
#include "shell/session.h"
#include "ui/Page.h"

namespace quillon {

class ColorblendBackground;

class DesignPage : public Page {
public:
    explicit DesignPage(Session& session);

    void ShowSession() override;

    /// A picture that can't be read is taken out of the project.
    void DrawDesBackground();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PlaceSurface(QSize page);

    Session& session_;
    ColorblendBackground* colorblendBackground_;
    SurfacePlace place_;
    SurfacePaint paint_;
};

} // namespace quillon
