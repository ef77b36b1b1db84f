#include "actions/forms/pages/DlgLicenseInfoRtf.h"

#include "actions/agreement_document.h"
#include "actions/forms/previews/previews.h"
#include "shell/session.h"
#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::DialogBoxData;

constexpr int kFieldCharacters = 60;

} // namespace

DlgLicenseInfoRtf::DlgLicenseInfoRtf(Session& session, QWidget* parent)
    : PageEditor("DlgLicenseInfoRtf", &section::DialogBoxes::LicenseInfoRtfDlg, session, parent)
{
    Arrange(VBox({
        Above("&Titel:", MinWidth(kFieldCharacters,
                                  Line(NAMED(tDialogTitle), &DialogBoxData::LicenseTitleRtf))),
        DocumentFrame(),
        Above("Text &under avtalet:", Line(NAMED(tFootText), &DialogBoxData::LicenseFootTextRtf)),
        Stretch(),
        Ending([this] { Test(); }),
    }));
    UseDocument(data_.LicenseFilenameRtf);
    Bind([this] { data_.LicenseFilenameRtf = document_; });
    tDialogTitle->setFocus();
}

QWidget* DlgLicenseInfoRtf::DocumentFrame()
{
    Named(NAMED(labRtfFilename), new PathLabel);
    Named(NAMED(sRtfNote), Note({}));
    Button(NAMED(CmdSelectRtfFile), "&Välj RTF-fil...", [this] {
        Text& folder = session_.Settings.Directories.LastRtfLicenseFileDir;
        if (const auto path = ChooseRtfFile(folder, session_.ask))
            UseDocument(*path);
    });
    Button(NAMED(CmdOpenRtfFile), "Ö&ppna",
           [this] { OpenRtfFile(document_, session_.host.machine, session_.ask); });
    Button(NAMED(CmdDel), "Ta &bort", [this] { UseDocument({}); });
    return Frame("Avtalets RTF-fil", {labRtfFilename, sRtfNote,
                                      HBox({CmdSelectRtfFile, CmdOpenRtfFile, CmdDel, Stretch()})});
}

void DlgLicenseInfoRtf::UseDocument(const Text& path)
{
    document_ = path;
    labRtfFilename->ShowPath(ToQt(path));
    const bool isThere = !path.empty() && session_.host.files.FileExists(path);
    labRtfFilename->setVisible(!path.empty());
    sRtfNote->setText(path.empty() ? "Ingen RTF-fil är vald." : "Filen finns inte.");
    sRtfNote->setVisible(!isThere);
    CmdOpenRtfFile->setEnabled(!path.empty());
    CmdDel->setEnabled(!path.empty());
}

void DlgLicenseInfoRtf::Test()
{
    ShowInstDlgLicenseInfoRtf(session_,
                              {.title = FromQt(tDialogTitle->text()),
                               .license = document_,
                               .footText = FromQt(tFootText->text())},
                              this);
}

} // namespace quillon
