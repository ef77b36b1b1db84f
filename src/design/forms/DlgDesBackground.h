// What the setup's screen has behind everything: a blend of colours, or a picture.
#pragma once

#include "design/forms/DesignEditor.h"

class QLabel;

namespace quillon {

class DlgDesBackground : public DesignEditor {
public:
    DlgDesBackground(Session& session, QWidget* parent);

    QRadioButton* oColor = nullptr;
    QRadioButton* oPicture = nullptr;
    ColourButton* cmdBackColor = nullptr;
    ColourButton* cmdBackColor2 = nullptr;
    QComboBox* ComboBlendDirection = nullptr;
    QLabel* labBlendDepth = nullptr;
    QLineEdit* tBlendDepth = nullptr;
    PathLabel* sPictureFileName = nullptr;
    QPushButton* cmdSelectPicture = nullptr;
    QPushButton* cmdReset = nullptr;
    QCheckBox* cStretchPictureToScreen = nullptr;

protected:
    bool MayClose() override;

private:
    Piece ColourFrame();
    Piece PictureFrame();
    void ChooseDirection();
    void EnableDepth();
    void FillDepth();

    section::DesBackground& background_;
};

} // namespace quillon
