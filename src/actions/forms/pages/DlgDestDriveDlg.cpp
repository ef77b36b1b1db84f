#include "actions/forms/pages/DlgDestDriveDlg.h"

#include "actions/forms/previews/previews.h"

#include <QtWidgets>

namespace quillon {

DlgDestDriveDlg::DlgDestDriveDlg(Session& session, QWidget* parent)
    : DiskSpaceEditor("DlgDestDriveDlg", &section::DialogBoxes::DestinationDriveDlg, session,
                      parent)
{
    Arrange(VBox({
        DiskSpaceFrame(data_.DestDriveShowSizeInfo, data_.DestDriveShowSizeInfoButton),
        Stretch(),
        Ending([this] { Test(); }),
    }));
}

void DlgDestDriveDlg::Test()
{
    ShowInstDlgDestDrive(session_,
                         {.showsSpace = cShowDiskSpaceDirectly->isChecked(),
                          .hasSpaceButton = cShowDiskSpaceButton->isChecked()},
                         this);
}

} // namespace quillon
