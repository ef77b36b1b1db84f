// Find and replace in a column of the file list.
#pragma once

#include "filelist/replace_rows.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgFindReplaceData : public EditorForm {
public:
    /// `findThis` is proposed to look for.
    DlgFindReplaceData(ReplaceIn where, const Text& findThis, Session& session, QWidget* parent);

    // The chosen texts, valid once OK was pressed.
    Replacement Data;
    bool Accepted() const { return OK; }

    QLineEdit* tFindThis = nullptr;
    QLineEdit* tReplaceWith = nullptr;
    QCheckBox* cPartOfText = nullptr;

protected:
    bool MayClose() override;

private:
    void KeepOptionLetters();

    const ReplaceIn where_;
};

} // namespace quillon
