#include "filelist/forms/DlgChangeSrcPath.h"

#include "filelist/row_text.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kUsualPathLength = 60;

} // namespace

DlgChangeSrcPath::DlgChangeSrcPath(const Text& source, Session& session, QWidget* parent)
    : EditorForm("DlgChangeSrcPath", "Ändra källsökväg", session, parent), Source(source)
{
    Arrange(VBox({
        Above("&Filens sökväg på din hårddisk:",
              MinWidth(kUsualPathLength, Field(NAMED(tFileSrcDir), Source))),
        Stretch(),
        OkCancel(),
    }));
    cmdOK->setObjectName("OKButton");
    cmdCancel->setObjectName("CancelButton");
    tFileSrcDir->setFocus();
}

// Kept: a path without a file is reported and taken all the same; the file may come later.
bool DlgChangeSrcPath::MayClose()
{
    const Text typed = FromQt(tFileSrcDir->text());
    if (!CheckRowText(typed, "Källsökvägen", session_.ask)) {
        tFileSrcDir->setFocus();
        return false;
    }
    if (!session_.host.files.FileExists(typed))
        session_.ask.Warn("Varning", "Filen existerar inte vid angiven sökväg!");
    return true;
}

} // namespace quillon
