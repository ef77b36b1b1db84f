#include "design/forms/DlgDesPercentGauge.h"

#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

DlgDesPercentGauge::DlgDesPercentGauge(Session& session, QWidget* parent)
    : DesignEditor("DlgDesPercentGauge", "Procentmätare", session, parent)
{
    section::DesPercentGauge& gauge = session.project.DesPercentGauge;
    Arrange(VBox({
        HBox({
            Frame("Vågrätt", {Options(gauge.GaugeAlignmentH, {{NAMED(oLeft), "&Vänster", 1},
                                                              {NAMED(oHCenter), "&Mitten", 2},
                                                              {NAMED(oRight), "&Höger", 3}})}),
            Frame("Lodrätt", {Options(gauge.GaugeAlignmentV, {{NAMED(oTop), "&Överst", 1},
                                                              {NAMED(oVCenter), "M&itten", 2},
                                                              {NAMED(oBottom), "&Nederst", 3}})}),
        }),
        Stretch(),
        OkCancel(),
    }));
}

} // namespace quillon
