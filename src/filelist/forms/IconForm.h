// What the two dialogs for a row's icon share. They edit a copy, which goes to the row on OK.
#pragma once

#include "filelist/options/icon_row.h"
#include "ui/kit/Form.h"

namespace quillon {

class IconForm : public EditorForm {
public:
    QLineEdit* tDescription = nullptr;
    QLineEdit* tWorkDir = nullptr;
    QCheckBox* cAddIcon = nullptr;
    QPushButton* mIconOptions = nullptr;

protected:
    IconForm(const char* name, FileListRow& row, Session& session, QWidget* parent);

    /// The last rows of both dialogs: whether there is an icon, where else, OK and Cancel.
    Piece Ending();
    /// Typing into this field ticks the box for an icon.
    void TickAddIconOnTyping(QLineEdit* field);
    /// False, with a box and the caret in the field, where its text can't be in a row.
    bool CanStore(QLineEdit* field);
    bool MayClose() override;

    FileListRow& row_;
    RowIcon icon_;

private:
    void ChoosePlace();
};

} // namespace quillon
