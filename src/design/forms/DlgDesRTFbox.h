// The RTF box of the setup's screen, and the editor of the text in it.
#pragma once

#include "design/forms/DesignEditor.h"
#include "design/rtf_box_file.h"

class QTextCharFormat;
class QTextEdit;

namespace quillon {

class DlgDesRTFbox : public DesignEditor {
public:
    DlgDesRTFbox(Session& session, QWidget* parent);

    QTextEdit* RTFbox = nullptr;
    QLineEdit* tRTFfilename = nullptr;
    QCheckBox* cShowRTFbox = nullptr;
    QLineEdit* tWidth = nullptr;
    QLineEdit* tHeight = nullptr;
    ColourButton* cmdSetBackColor = nullptr;
    QPushButton* cmdBold = nullptr;
    QPushButton* cmdItalic = nullptr;
    QPushButton* cmdUnderline = nullptr;
    QPushButton* cmdRTFfont = nullptr;
    QPushButton* cmdUndo = nullptr;
    QPushButton* cmdRedo = nullptr;

protected:
    bool MayClose() override;
    void Store() override;

private:
    void MakeEditor();
    Piece FormatButtons();
    Piece SizeFrame();
    void Format(const QTextCharFormat& format);
    void ShowFormat();
    void ShowBackColour();
    void ChooseRTFfont();
    RTFboxFolders Folders() const;
    void Load();
    bool SaveText();

    section::DesRTFbox& box_;
    // The file whose text the editor shows whole.
    Text shownFile_;
};

} // namespace quillon
