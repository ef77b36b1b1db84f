#include "app/appearance.h"

#include "ui/colour_scheme.h"
#include "ui/icons.h"
#include "ui/swedish_texts.h"

#include <QtWidgets>

namespace quillon {

void PrepareAppearance(QApplication& application)
{
    InstallSwedishTexts(application);
    ApplyColourScheme();
    QApplication::setWindowIcon(NamedIcon("quillon"));
}

} // namespace quillon
