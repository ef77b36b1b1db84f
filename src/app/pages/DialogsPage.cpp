#include "app/pages/DialogsPage.h"

#include "actions/dialog_bitmap.h"
#include "actions/forms/pages/DlgDestDirDlg.h"
#include "actions/forms/pages/DlgDestDriveDlg.h"
#include "actions/forms/pages/DlgGeneral.h"
#include "actions/forms/pages/DlgLicenseInfo.h"
#include "actions/forms/pages/DlgLicenseInfoRtf.h"
#include "actions/forms/pages/DlgNameCompany.h"
#include "actions/forms/pages/DlgPassword.h"
#include "actions/forms/pages/PictureChoice.h"

#include <QtWidgets>
#include <algorithm>

namespace quillon {

namespace {

using section::DialogBoxes;

constexpr PictureChoiceNames kSharedPicture{"Bild i alla dialogrutor", "cmdSelectDlgBitmap",
                                            "cmdStdDlgBitmap", "sDlgBitmapFilename",
                                            "PictureDlgBitmap"};

template <class Editor>
void Edit(Session& session, QWidget* parent)
{
    Editor(session, parent).ShowModal();
}

template <DialogSwitch page>
void EditGeneral(Session& session, QWidget* parent)
{
    DlgGeneral(GeneralPageOf(page), session, parent).ShowModal();
}

// The controls of each page of the chain, in its order, and what its button opens.
struct TickControls {
    DialogSwitch page;
    const char* box;
    const char* edit; // none for a page that has a command of its own
    void (*open)(Session& session, QWidget* parent);
};
// clang-format off
constexpr TickControls kControls[] = {
    {&DialogBoxes::WelcomeDlg,          "cWelcomeDlg",          "cmdWelcomeDlg",          EditGeneral<&DialogBoxes::WelcomeDlg>},
    {&DialogBoxes::GeneralInfoDlg,      "cGeneralInfoDlg",      "cmdGeneralInfoDlg",      EditGeneral<&DialogBoxes::GeneralInfoDlg>},
    {&DialogBoxes::GeneralInfoDlg2,     "cGeneralInfoDlg2",     "cmdGeneralInfoDlg2",     EditGeneral<&DialogBoxes::GeneralInfoDlg2>},
    {&DialogBoxes::LicenseInfoDlg,      "cLicenseInfoDlg",      "cmdLicenseInfoDlg",      Edit<DlgLicenseInfo>},
    {&DialogBoxes::LicenseInfoRtfDlg,   "cLicenseInfoRtfDlg",   "cmdLicenseInfoRtfDlg",   Edit<DlgLicenseInfoRtf>},
    {&DialogBoxes::PasswordDlg,         "cPasswordDlg",         "cmdPasswordDlg",         Edit<DlgPassword>},
    {&DialogBoxes::NameCompanyDlg,      "cNameCompanyDlg",      "cmdNameCompanyDlg",      Edit<DlgNameCompany>},
    {&DialogBoxes::DestinationDlg,      "cDestinationDlg",      "cmdDestDirDlg",          Edit<DlgDestDirDlg>},
    {&DialogBoxes::DestinationDriveDlg, "cDestinationDriveDlg", "cmdDestDriveDlg",        Edit<DlgDestDriveDlg>},
    {&DialogBoxes::ProgramGroupDlg,     "cSelectProgGroup",     nullptr,                  nullptr},
    {&DialogBoxes::StartInstallDlg,     "cStartInstallDlg",     "cmdStartInstallDlg",     EditGeneral<&DialogBoxes::StartInstallDlg>},
    {&DialogBoxes::InstallCompletedDlg, "cInstallCompletedDlg", "cmdInstallCompletedDlg", EditGeneral<&DialogBoxes::InstallCompletedDlg>},
};
// clang-format on
static_assert(std::ranges::equal(kControls, kDialogChain, {}, &TickControls::page,
                                 &DialogChainPage::isOn));

} // namespace

DialogsPage::DialogsPage(Session& session) : session_(session)
{
    setObjectName("DialogsPage");
    picture_ = new PictureChoice(kSharedPicture, session, [this](const Text& path) {
        UseDlgBitmap(session_.project, path);
        session_.state.ProjectIsDirty = kOn;
    });
    Arrange(this, HBox({TicksFrame(), Growing(picture_)}));
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
            const auto open = kControls[page].open;
            grid->addWidget(
                Button(edit, name, "Redigera...", [this, open] { open(session_, window()); }), line,
                1);
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

void DialogsPage::ShowSession()
{
    ShowTicks();
    picture_->ShowBitmap(session_.project.DialogBoxes.DlgBitmap);
}

void DialogsPage::ShowTicks()
{
    for (std::size_t page = 0; page < boxes_.size(); ++page)
        boxes_[page]->setChecked(session_.project.DialogBoxes.*kDialogChain[page].isOn != 0);
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

} // namespace quillon
