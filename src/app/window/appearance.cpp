#include "app/window/appearance.h"

#include "ui/controls/cut_texts.h"
#include "ui/kit/menu_key.h"
#include "ui/look/colour_scheme.h"
#include "ui/look/icons.h"
#include "ui/swedish/swedish_texts.h"

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
