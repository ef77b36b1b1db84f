// The icon that the setup makes for a file.
#pragma once

#include "filelist/forms/IconForm.h"

class QLabel;

namespace quillon {

class DlgIcon : public IconForm {
public:
    DlgIcon(FileListRow& row, Session& session, QWidget* parent);

    QLabel* sFilename = nullptr;
    QLineEdit* tParameters = nullptr;
    QLineEdit* tIconFile = nullptr;
    QComboBox* ComboDocumentReader = nullptr;

protected:
    bool MayClose() override;
    void Store() override;

private:
    void MakeDocumentReader();
};

} // namespace quillon
