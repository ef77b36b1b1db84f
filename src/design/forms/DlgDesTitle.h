// The title of the setup's screen, with its font, its colour and the subtitle.
#pragma once

#include "design/forms/DesignEditor.h"

class QLabel;

namespace quillon {

class DlgDesTitle : public DesignEditor {
public:
    DlgDesTitle(Session& session, QWidget* parent);

    QLineEdit* tTitleText = nullptr;
    QRadioButton* oTitleLeft = nullptr;
    QRadioButton* oTitleCenter = nullptr;
    QRadioButton* oTitleRight = nullptr;
    QCheckBox* cTitleShadow = nullptr;
    QLineEdit* tTitleCharInterSpace = nullptr;
    UpDownArrows* UpDownArr = nullptr;
    ColourButton* cmdTitleColor = nullptr;
    QPushButton* cmdTitleFont = nullptr;
    QLabel* sTitleFont = nullptr;
    QPushButton* CmdSubTitle = nullptr;

private:
    void MakeSpacing();
    void ChooseFont();
    void ShowFont();

    section::DesTitle& title_;
    Text subTitle_;
};

} // namespace quillon
