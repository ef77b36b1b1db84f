// The text box of the setup's screen: its texts, their fonts, its size and colour.
#pragma once

#include "design/forms/DesignEditor.h"
#include "design/forms/font_records.h"

class QLabel;

namespace quillon {

class DlgDesTextbox : public DesignEditor {
public:
    DlgDesTextbox(Session& session, QWidget* parent);

    QLineEdit* tTitleText = nullptr;
    QPlainTextEdit* tBoxText = nullptr;
    QCheckBox* cUseBackground = nullptr;
    ColourButton* cmdSetBackColor = nullptr;
    QCheckBox* cShowTextBox = nullptr;
    QCheckBox* cCenterBox = nullptr;
    QCheckBox* cPlaceBelowTitle = nullptr;
    QLineEdit* tWidth = nullptr;
    QLineEdit* tHeight = nullptr;
    QPushButton* cmdTitleFont = nullptr;
    QPushButton* cmdTextBoxFont = nullptr;
    QLabel* sBoxTitleFont = nullptr;
    QLabel* sBoxTextFont = nullptr;

private:
    Piece TextFrame();
    Piece LooksFrame();
    void ChooseBoxFont(const BoxFont& fields, QLabel* label);

    section::DesTextBox& box_;
};

} // namespace quillon
