// The series of pictures that change in one place of the setup's screen.
#pragma once

#include "design/forms/DesignEditor.h"

class QListWidget;

namespace quillon {

class DlgDesPicturesAnim : public DesignEditor {
public:
    DlgDesPicturesAnim(Session& session, QWidget* parent);

    QListWidget* lbPictureList = nullptr;
    QPushButton* cmdAddPicture = nullptr;
    QPushButton* cmdRemovePicture = nullptr;
    QCheckBox* cStretchPicture = nullptr;
    QLineEdit* tWidth = nullptr;
    QLineEdit* tHeight = nullptr;
    QLineEdit* tIntervalSeconds = nullptr;

protected:
    void Store() override;

private:
    Piece ListFrame();
    void AddPicture();
    void RemovePicture();

    section::DesPicturesAnim& pictures_;
};

} // namespace quillon
