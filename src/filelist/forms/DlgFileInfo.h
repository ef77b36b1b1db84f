// What there is to know about the file of a row; nothing is changed here.
#pragma once

#include "ui/kit/Form.h"

namespace quillon {

struct FileInfo;
struct FileListRow;

class DlgFileInfo : public Form {
public:
    DlgFileInfo(const FileListRow& row, Session& session, QWidget* parent);

    // Fields that can be read and copied from, but not typed in.
    QLineEdit* sFilename = nullptr;
    QLineEdit* sFileSize = nullptr;
    QLineEdit* sFileDateTime = nullptr;
    QLineEdit* sFileAttr = nullptr;
    QLineEdit* sFileDest = nullptr;
    QLineEdit* sFileSrc = nullptr;
    QLineEdit* sFileVersion = nullptr;
    QLineEdit* sFileDescription = nullptr;
    QLineEdit* sCopyright = nullptr;
    QPushButton* cmdMDADetails = nullptr;

private:
    Piece FileFields(const FileInfo& info);
    Piece VersionFields(const FileInfo& info);
};

} // namespace quillon
