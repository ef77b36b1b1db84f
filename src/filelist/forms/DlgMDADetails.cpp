#include "filelist/forms/DlgMDADetails.h"

#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

DlgMDADetails::DlgMDADetails(Session& session, QWidget* parent)
    : EditorForm("DlgMDADetails", "Inställningar för MDAC", session, parent)
{
    section::Databases& databases = session.project.Databases;
    Arrange(VBox({
        Note("Microsoft Data Access Components installeras av ett eget installationsprogram."),
        Check(NAMED(cHiddenInstall), "&Dölj installationsprogrammet för användaren",
              databases.MDAHiddenInstall),
        Check(NAMED(cAskUser), "&Fråga användaren före installationen", databases.MDAAskUser),
        Stretch(),
        OkCancel(),
    }));
}

} // namespace quillon
