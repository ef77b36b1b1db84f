#include "app/DialogsPage.h"

#include "actions/dialog_bitmap.h"
#include "ui/PathLabel.h"
#include "ui/PictureView.h"
#include "ui/picture.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

// The controls of each page of the chain, in its order.
struct TickControls {
    const char* box;
    const char* edit; // none for a page that has a command of its own
};
constexpr TickControls kControls[] = {
    {"cWelcomeDlg", "cmdWelcomeDlg"},
    {"cGeneralInfoDlg", "cmdGeneralInfoDlg"},
    {"cGeneralInfoDlg2", "cmdGeneralInfoDlg2"},
    {"cLicenseInfoDlg", "cmdLicenseInfoDlg"},
    {"cLicenseInfoRtfDlg", "cmdLicenseInfoRtfDlg"},
    {"cPasswordDlg", "cmdPasswordDlg"},
    {"cNameCompanyDlg", "cmdNameCompanyDlg"},
    {"cDestinationDlg", "cmdDestDirDlg"},
    {"cDestinationDriveDlg", "cmdDestDriveDlg"},
    {"cSelectProgGroup", nullptr},
    {"cStartInstallDlg", "cmdStartInstallDlg"},
    {"cInstallCompletedDlg", "cmdInstallCompletedDlg"},
};
static_assert(std::size(kControls) == std::size(kDialogChain));

} // namespace

DialogsPage::DialogsPage(Session& session) : session_(session)
{
    setObjectName("DialogsPage");
    Arrange(this, Across({TicksFrame(), Growing(PictureFrame())}));
}

QGroupBox* DialogsPage::TicksFrame()
{
    auto* frame = new QGroupBox("Dialogrutor i installationsprogrammet");
    frame->setObjectName("FrameDialogBoxes");
    auto* grid = new QGridLayout(frame);
    for (std::size_t page = 0; page < boxes_.size(); ++page) {
        const int line = static_cast<int>(page);
        grid->addWidget(TickBox(page), line, 0);
        // The page without a button is as high as the others.
        if (line > 0)
            grid->setRowMinimumHeight(line, grid->itemAtPosition(0, 1)->sizeHint().height());
        if (const char* name = kControls[page].edit) {
            QPushButton* edit = nullptr;
            grid->addWidget(Button(edit, name, "Redigera..."), line, 1);
            edit->setAccessibleName("Redigera " + boxes_[page]->text());
        }
    }
    grid->setRowStretch(static_cast<int>(boxes_.size()), 1);
    return frame;
}

QCheckBox* DialogsPage::TickBox(std::size_t page)
{
    const DialogSwitch isOn = kDialogChain[page].isOn;
    auto* box = Named(boxes_[page], kControls[page].box,
                      new QCheckBox(QString::fromUtf8(kDialogChain[page].caption)));
    // The space bar presses a box as the mouse does, so that the keyboard follows the same rules.
    connect(box, &QCheckBox::pressed, this, [this, isOn] { Press(isOn); });
    connect(box, &QCheckBox::clicked, this, [this, isOn](bool ticked) { Tick(isOn, ticked); });
    return box;
}

QGroupBox* DialogsPage::PictureFrame()
{
    Button(NAMED(cmdSelectDlgBitmap), "&Välj bild...", [this] {
        UsePicture(ChooseDlgBitmap(session_.Settings.Directories.LastDlgPictureDir, session_.ask));
    });
    Button(NAMED(cmdStdDlgBitmap), "S&tandardbild", [this] {
        UsePicture(
            StandardDlgBitmap(session_.host.files, session_.options.ToolFolder, session_.ask));
    });
    Named(NAMED(PictureDlgBitmap), new PictureView, "Bild i dialogrutorna");
    Named(NAMED(sDlgBitmapFilename), new PathLabel);
    return Frame("Bild i alla dialogrutor",
                 {Growing(PictureDlgBitmap), sDlgBitmapFilename,
                  Across({cmdSelectDlgBitmap, cmdStdDlgBitmap, Stretch()})});
}

void DialogsPage::ShowSession()
{
    ShowTicks();
    ShowPicture();
}

void DialogsPage::ShowTicks()
{
    for (std::size_t page = 0; page < boxes_.size(); ++page)
        boxes_[page]->setChecked(session_.project.DialogBoxes.*kDialogChain[page].isOn != 0);
}

void DialogsPage::ShowPicture()
{
    const Text& path = session_.project.DialogBoxes.DlgBitmap;
    sDlgBitmapFilename->ShowPath(ToQt(path));
    if (const auto picture = LoadPicture(session_.host.files, path))
        PictureDlgBitmap->ShowPicture(*picture);
    else
        PictureDlgBitmap->ShowNote(path.empty() ? "Ingen bild är vald" : "Bilden kan inte visas");
}

void DialogsPage::Press(DialogSwitch page)
{
    if (!PressDialogPage(session_.project.DialogBoxes, page))
        return;
    session_.state.ProjectIsDirty = kOn;
    ShowTicks();
}

void DialogsPage::Tick(DialogSwitch page, bool ticked)
{
    TickDialogPage(session_.project.DialogBoxes, page, ticked);
    session_.state.ProjectIsDirty = kOn;
    ShowTicks();
}

void DialogsPage::UsePicture(const std::optional<Text>& path)
{
    if (!path)
        return;
    UseDlgBitmap(session_.project, *path);
    session_.state.ProjectIsDirty = kOn;
    ShowPicture();
}

} // namespace quillon
