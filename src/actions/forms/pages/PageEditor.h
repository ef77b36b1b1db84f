// What the editors of a setup's pages share: the page's texts and choices, a preview of them as
// they are on the form, OK and Cancel. A page is edited whether or not it is part of the chain.
#pragma once

#include "actions/dialog_chain.h"
#include "project/records.h"
#include "ui/kit/Form.h"

#include <functional>

namespace quillon {

class PictureChoice;

class PageEditor : public EditorForm {
public:
    bool Accepted() const { return OK; }

    QPushButton* cmdTest = nullptr;

protected:
    /// The caption is the name of the page.
    PageEditor(const char* name, DialogSwitch page, Session& session, QWidget* parent);

    /// A line, or several, of the page's data; no longer than the text that the project file holds.
    QLineEdit* Line(QLineEdit*& member, const char* name, Text section::DialogBoxData::*field);
    QPlainTextEdit* Lines(QPlainTextEdit*& member, const char* name,
                          Text section::DialogBoxData::*field);
    /// The page's own picture; `shown` follows what is chosen, the project does so on OK.
    PictureChoice* OwnPicture(Text section::DialogBoxData::*field, Text& shown);

    /// The last row: `test` shows the page as the fields have it now; OK and Cancel.
    Piece Ending(std::function<void()> test);

    section::DialogBoxData& data_;
};

} // namespace quillon
