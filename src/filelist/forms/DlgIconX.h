// The icon of a file that is an icon itself: it is seen, and starts what its command line says.
#pragma once

#include "filelist/forms/IconForm.h"

namespace quillon {

class PictureView;

class DlgIconX : public IconForm {
public:
    DlgIconX(FileListRow& row, Session& session, QWidget* parent);

    PictureView* IconPicture = nullptr;
    QLineEdit* tCommandLine = nullptr;

protected:
    bool MayClose() override;
    void Store() override;

private:
    void ShowIcon();
};

} // namespace quillon
