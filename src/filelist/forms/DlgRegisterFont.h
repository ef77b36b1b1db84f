// Whether the setup registers a font, and what it does where the font is there already.
#pragma once

#include "filelist/options/font_row.h"
#include "ui/kit/Form.h"

namespace quillon {

class PathLabel;

class DlgRegisterFont : public EditorForm {
public:
    DlgRegisterFont(FileListRow& row, Session& session, QWidget* parent);

    PathLabel* sFontFileName = nullptr;
    QLineEdit* tFontDesc = nullptr;
    QCheckBox* cRegisterFont = nullptr;
    QCheckBox* cNeverReplaceExistingFonts = nullptr;

protected:
    bool MayClose() override;
    void Store() override;

private:
    FileListRow& row_;
    RowFont font_;
};

} // namespace quillon
