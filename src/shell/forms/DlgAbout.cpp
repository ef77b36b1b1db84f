#include "shell/forms/DlgAbout.h"

#include "helpers/product.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgAbout::DlgAbout(QWidget* parent) : Form("DlgAbout", "Om " + Text(kProductName), parent)
{
    Named(NAMED(lProductName), new QLabel(ToQt(kProductName)));
    QFont large = lProductName->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    lProductName->setFont(large);
    Named(NAMED(lVersion), new QLabel(ToQt("Version " + Text(kToolVersion))));
    for (QLabel* label : {lProductName, lVersion})
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);

    Arrange(VBox({
        lProductName,
        lVersion,
        MinWidth(50, Note("Skapar installationsprogram för Windows: filer, registervärden, "
                          "INI-filer, genvägar och de sidor som användaren ser.")),
        Stretch(),
        OkOnly(),
    }));
}

void ShowAbout(QWidget* parent)
{
    DlgAbout(parent).ShowModal();
}

} // namespace quillon
