#include "filelist/forms/DlgFileInfo.h"

#include "filelist/forms/DlgMDADetails.h"
#include "filelist/options/file_info.h"
#include "shell/session.h"
#include "ui/controls/ShownField.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kPathCharacters = 56;

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
        {"Filnamn:", MinWidth(kPathCharacters, ShownField(NAMED(sFilename), info.Filename))},
        {"Storlek:", ShownField(NAMED(sFileSize), info.FileSize)},
        {"Datum och tid:", ShownField(NAMED(sFileDateTime), info.FileDateTime)},
        {"Attribut:", ShownField(NAMED(sFileAttr), info.FileAttr)},
        {"Destination:", ShownField(NAMED(sFileDest), info.FileDest)},
        {"Källa:", ShownField(NAMED(sFileSrc), info.FileSrc)},
    });
}

Piece DlgFileInfo::VersionFields(const FileInfo& info)
{
    return Fields({
        {"Filversion:", ShownField(NAMED(sFileVersion), info.FileVersion)},
        {"Beskrivning:", ShownField(NAMED(sFileDescription), info.FileDescription)},
        {"Copyright:", ShownField(NAMED(sCopyright), info.Copyright)},
    });
}

} // namespace quillon
