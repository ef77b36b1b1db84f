#include "app/appearance.h"

#include "ui/colour_scheme.h"
#include "ui/cut_texts.h"
#include "ui/icons.h"
#include "ui/menu_key.h"
#include "ui/swedish_texts.h"

#include <QtWidgets>

namespace quillon {

void PrepareAppearance(QApplication& application)
{
    InstallSwedishTexts(application);
    ApplyColourScheme();
    ShowElidedTextsAsToolTips(application);
    OpenMenusByShiftF10(application);
    QApplication::setWindowIcon(NamedIcon("quillon"));
}

} // namespace quillon
