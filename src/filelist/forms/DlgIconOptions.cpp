#include "filelist/forms/DlgIconOptions.h"

#include <QtWidgets>

namespace quillon {

DlgIconOptions::DlgIconOptions(const IconPlaces& places, QWidget* parent)
    : Form("DlgIconOptions", "Alternativ för ikon", parent)
{
    Named(NAMED(cIconOnDesktop), new QCheckBox("&Placera även ikon på skrivbordet"));
    Named(NAMED(cIconOnStartMenu), new QCheckBox("Placera även ikon på &startmenyn"));
    Named(NAMED(cIconOnProgramMenu), new QCheckBox("Placera även ikon på program&menyn"));
    cIconOnDesktop->setChecked(places.onDesktop);
    cIconOnStartMenu->setChecked(places.onStartMenu);
    cIconOnProgramMenu->setChecked(places.onProgramMenu);
    AtMostOne({cIconOnDesktop, cIconOnStartMenu, cIconOnProgramMenu});
    Arrange(VBox({cIconOnDesktop, cIconOnStartMenu, cIconOnProgramMenu, Stretch(), OkCancel()}));
}

void DlgIconOptions::Store()
{
    Places = {cIconOnDesktop->isChecked(), cIconOnStartMenu->isChecked(),
              cIconOnProgramMenu->isChecked()};
}

} // namespace quillon
