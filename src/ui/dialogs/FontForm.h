// Chooses a font for a text of the project: what such a text can have, and no more.
#pragma once

#include "platform/ask_looks.h"
#include "ui/kit/Form.h"

class QFontComboBox;
class QLabel;

namespace quillon {

class Ask;
class ColourButton;

class FontForm : public Form {
public:
    FontForm(const FontChoice& current, Ask& ask, QWidget* parent);

    // After OK: what was chosen.
    FontChoice Chosen;

    QFontComboBox* ComboFontName = nullptr;
    QComboBox* ComboFontSize = nullptr;
    QCheckBox* cBold = nullptr;
    QCheckBox* cItalic = nullptr;
    QCheckBox* cUnderline = nullptr;
    QCheckBox* cStrikeThrough = nullptr;
    ColourButton* cmdColor = nullptr;
    QLabel* sSample = nullptr;

protected:
    bool MayClose() override;
    void Store() override;

private:
    void MakeName();
    void MakeSize();
    void MakeLooks();
    FontChoice Shown() const;
    Integer ShownSize() const;
    void ShowSample();

    Ask& ask_;
};

} // namespace quillon
