// The line below the title.
#pragma once

#include "design/forms/DesignEditor.h"

namespace quillon {

class DlgUnderline : public DesignEditor {
public:
    DlgUnderline(Session& session, QWidget* parent);

    int GetUnderlineTypeNr() const;
    void SetUnderlineTypeNr(int n);

    QRadioButton* oNoUnderline = nullptr;
    QRadioButton* oSimpleUnderline = nullptr;
    QRadioButton* oMistyUnderline = nullptr;
    QRadioButton* oBlendUnderline = nullptr;
    ColourButton* CmdColor1 = nullptr;
    ColourButton* CmdColor2 = nullptr;
    QLineEdit* tUnderlineHeight = nullptr;
    UpDownArrows* UpDownArr = nullptr;
    QCheckBox* cUnderlineTextOnly = nullptr;
    QPushButton* CmdHelp = nullptr;

private:
    void MakeHeight();
    void EnableColours();
    void ChooseKind();

    section::DesTitleUnderline& underline_;
};

} // namespace quillon
