#include "filelist/forms/DlgDestDirVars.h"

#include "filelist/adding/destination_choice.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgDestDirVars::DlgDestDirVars(QWidget* parent) : Form("DlgDestDirVars", "Variabler", parent)
{
    Named(NAMED(lbVariables), new QListWidget);
    for (const Text& variable : DestinationVariables())
        lbVariables->addItem(ToQt(variable));
    lbVariables->setCurrentRow(0);
    Arrange(VBox({Growing(Above("&Välj variabel:", lbVariables)), OkCancel()}));
    connect(lbVariables, &QListWidget::itemDoubleClicked, this, [this] { cmdOK->click(); });
}

bool DlgDestDirVars::MayClose()
{
    if (!lbVariables->currentItem())
        return false;
    Variable = FromQt(lbVariables->currentItem()->text());
    return true;
}

} // namespace quillon
