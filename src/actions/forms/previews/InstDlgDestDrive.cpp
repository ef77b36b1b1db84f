#include "actions/forms/previews/InstDlgDestDrive.h"

#include "actions/forms/pages/DiskSpacePart.h"
#include "actions/preview_page.h"
#include "formats/install_drives.h"
#include "formats/page_layout.h"
#include "platform/volume_name.h"
#include "shell/session.h"
#include "ui/controls/RunningText.h"
#include "ui/look/icons.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kRoot = Qt::UserRole;

} // namespace

InstDlgDestDrive::InstDlgDestDrive(const DiskSpacePreview& page, Session& session, QWidget* parent)
    : InstDlg("InstDlgDestDrive", &section::DialogBoxes::DestinationDriveDlg, "Enhet", {}, session,
              parent)
{
    Paragraph(NAMED(sText), "Välj den enhet som programmet ska installeras på.", "Text",
              PageLayout::kMaxTextHeight);
    Named(NAMED(lbDrives), new QListWidget);
    FillDrives();
    space = new DiskSpacePart(page, session);
    connect(lbDrives, &QListWidget::currentRowChanged, this, [this] { ShowSpace(); });
    ArrangePage(VBox({sText, Growing(Above("&Enhet:", lbDrives)), space}));
    ShowSpace();
}

/// The drive of the main folder is proposed, else the first one.
void InstDlgDestDrive::FillDrives()
{
    const FileSystem& files = session_.host.files;
    const Text proposed = PreviewMainFolder(session_.project, session_.host).substr(0, 2);
    for (const Text& root : InstallDrives(files)) {
        const Text volume = VolumeNameIfAny(files, root);
        const Text caption = volume.empty() ? root : root + "  (" + volume + ")";
        auto* item = new QListWidgetItem(NamedIcon("drive"), ToQt(caption), lbDrives);
        item->setData(kRoot, ToQt(root));
        if (lbDrives->count() == 1 || EqualIgnoreCase(root.substr(0, 2), proposed))
            lbDrives->setCurrentItem(item);
    }
}

void InstDlgDestDrive::ShowSpace()
{
    const QListWidgetItem* drive = lbDrives->currentItem();
    space->ShowFor(drive ? FromQt(drive->data(kRoot).toString()) : Text());
}

void ShowInstDlgDestDrive(Session& session, const DiskSpacePreview& page, QWidget* parent)
{
    InstDlgDestDrive(page, session, parent).ShowModal();
}

} // namespace quillon
