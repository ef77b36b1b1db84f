// One of the three free pictures of the setup's screen.
#pragma once

#include "design/forms/DesignEditor.h"

class QLabel;

namespace quillon {

class DlgDesPictures : public DesignEditor {
public:
    /// `index` is 0 to 2.
    DlgDesPictures(std::size_t index, Session& session, QWidget* parent);

    PathLabel* sFilename = nullptr;
    QPushButton* cmdSelectPicture = nullptr;
    QPushButton* cmdReset = nullptr;
    QCheckBox* cTransparentBkg = nullptr;
    QComboBox* ComboTransparentColor = nullptr;
    QCheckBox* cStretchPicture = nullptr;
    QLabel* LabelW = nullptr;
    QLabel* LabelH = nullptr;
    QLineEdit* tWidth = nullptr;
    QLineEdit* tHeight = nullptr;
    QCheckBox* cHidePicturesWhenDialogsShowed = nullptr;

private:
    Piece FileFrame();
    Piece SizeFrame();
    void EnableStretching();
    void Reset();

    section::DesPicture& picture_;
};

} // namespace quillon
