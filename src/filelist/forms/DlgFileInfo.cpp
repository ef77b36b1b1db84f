#include "filelist/forms/DlgFileInfo.h"

#include "filelist/forms/DlgMDADetails.h"
#include "filelist/options/file_info.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kPathCharacters = 56;

/// A text that can be selected and scrolled, on the form's own background.
QLineEdit* Shown(QLineEdit*& member, const char* name, const Text& text)
{
    auto* field = Named(member, name, new QLineEdit(ToQt(text)));
    field->setReadOnly(true);
    field->setFrame(false);
    field->setCursorPosition(0);
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::transparent);
    field->setPalette(palette);
    return field;
}

} // namespace

DlgFileInfo::DlgFileInfo(const FileListRow& row, Session& session, QWidget* parent)
    : Form("DlgFileInfo", "Filinformation", parent)
{
    const FileInfo info = FileInfoOf(row, session.host.files);
    Button(NAMED(cmdMDADetails), "&Inställningar för MDAC...",
           [this, &session] { DlgMDADetails(session, this).ShowModal(); });
    Arrange(VBox({
        Frame("Fil", {FileFields(info)}),
        Frame("Version", {VersionFields(info)}),
        Stretch(),
        HBox({cmdMDADetails, OkOnly()}),
    }));
    cmdMDADetails->setVisible(IsDataAccessPackage(row));
    cmdOK->setFocus();
}

Piece DlgFileInfo::FileFields(const FileInfo& info)
{
    return Fields({
        {"Filnamn:", MinWidth(kPathCharacters, Shown(NAMED(sFilename), info.Filename))},
        {"Storlek:", Shown(NAMED(sFileSize), info.FileSize)},
        {"Datum och tid:", Shown(NAMED(sFileDateTime), info.FileDateTime)},
        {"Attribut:", Shown(NAMED(sFileAttr), info.FileAttr)},
        {"Destination:", Shown(NAMED(sFileDest), info.FileDest)},
        {"Källa:", Shown(NAMED(sFileSrc), info.FileSrc)},
    });
}

Piece DlgFileInfo::VersionFields(const FileInfo& info)
{
    return Fields({
        {"Filversion:", Shown(NAMED(sFileVersion), info.FileVersion)},
        {"Beskrivning:", Shown(NAMED(sFileDescription), info.FileDescription)},
        {"Copyright:", Shown(NAMED(sCopyright), info.Copyright)},
    });
}

} // namespace quillon
