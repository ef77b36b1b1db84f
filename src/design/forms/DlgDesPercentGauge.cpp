#include "design/forms/DlgDesPercentGauge.h"

#include "design/number_fields.h"
#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

DlgDesPercentGauge::DlgDesPercentGauge(Session& session, QWidget* parent)
    : DesignEditor("DlgDesPercentGauge", "Procentmätare", session, parent)
{
    section::DesPercentGauge& gauge = session.project.DesPercentGauge;
    Arrange(VBox({
        HBox({
            Frame("Vågrätt",
                  {Options(gauge.GaugeAlignmentH,
                           {{NAMED(oLeft), "&Vänster", Integer(DesignAlignment::Begin)},
                            {NAMED(oHCenter), "&Mitten", Integer(DesignAlignment::Centre)},
                            {NAMED(oRight), "&Höger", Integer(DesignAlignment::End)}})}),
            Frame("Lodrätt",
                  {Options(gauge.GaugeAlignmentV,
                           {{NAMED(oTop), "&Överst", Integer(DesignAlignment::Begin)},
                            {NAMED(oVCenter), "M&itten", Integer(DesignAlignment::Centre)},
                            {NAMED(oBottom), "&Nederst", Integer(DesignAlignment::End)}})}),
        }),
        Stretch(),
        OkCancel(),
    }));
}

} // namespace quillon
