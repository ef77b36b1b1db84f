#include "actions/forms/pages/DlgDestDirDlg.h"

#include "actions/forms/DlgDestDirAdvUpdate.h"
#include "actions/forms/previews/previews.h"
#include "actions/update_reference.h"
#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

using section::Updates;

DlgDestDirDlg::DlgDestDirDlg(Session& session, QWidget* parent)
    : DiskSpaceEditor("DlgDestDirDlg", &section::DialogBoxes::DestinationDlg, session, parent),
      updates_(session.project.Updates), advanced_(updates_)
{
    Check(NAMED(cWarnIfDestDirExists), "&Varna om destinationskatalogen redan existerar",
          data_.WarnIfDestDirExists);
    Arrange(VBox({
        DiskSpaceFrame(data_.DestDirShowSizeInfo, data_.DestDirShowSizeInfoButton),
        Frame("Befintlig katalog", {cWarnIfDestDirExists}),
        UpdateFrame(),
        Stretch(),
        Ending([this] { Test(); }),
    }));
    ShowUpdateEnabled();
}

QWidget* DlgDestDirDlg::UpdateFrame()
{
    Check(NAMED(cHandleUpdate), "&Hantera uppdatering av en tidigare installerad version",
          updates_.HandleUpdate);
    Field(NAMED(tUpdateReferenceFile), updates_.UpdateReferenceFile,
          MaxTextLength(&Updates::UpdateReferenceFile));
    OnLeave(tUpdateReferenceFile, [this] {
        const Text typed = FromQt(tUpdateReferenceFile->text());
        if (const Text name = UpdateReferenceName(typed); name != typed)
            tUpdateReferenceFile->setText(ToQt(name));
    });
    Button(NAMED(cmdAdvUpdate), "&Avancerat...",
           [this] { DlgDestDirAdvUpdate(advanced_, session_, this).ShowModal(); });
    connect(cHandleUpdate, &QCheckBox::toggled, this, [this] { ShowUpdateEnabled(); });
    return Frame("Uppdateringar", {cHandleUpdate, Fields({{"&Referensfil:", tUpdateReferenceFile}}),
                                   HBox({Stretch(), cmdAdvUpdate})});
}

void DlgDestDirDlg::ShowUpdateEnabled()
{
    tUpdateReferenceFile->setEnabled(cHandleUpdate->isChecked());
    cmdAdvUpdate->setEnabled(cHandleUpdate->isChecked());
}

void DlgDestDirDlg::Store()
{
    updates_.AdvUpdateRegHKEYIndex = advanced_.AdvUpdateRegHKEYIndex;
    updates_.AdvUpdateRegSubKey = advanced_.AdvUpdateRegSubKey;
    updates_.AdvUpdateRegValueName = advanced_.AdvUpdateRegValueName;
    updates_.AdvUpdateRegAlwaysUseUserDefKey = advanced_.AdvUpdateRegAlwaysUseUserDefKey;
    PageEditor::Store();
}

void DlgDestDirDlg::Test()
{
    ShowInstDlgDestDir(session_,
                       {.showsSpace = cShowDiskSpaceDirectly->isChecked(),
                        .hasSpaceButton = cShowDiskSpaceButton->isChecked()},
                       this);
}

} // namespace quillon
