#include "actions/forms/pages/PageEditor.h"

#include "actions/forms/pages/PictureChoice.h"
#include "project/text_limits.h"
#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::DialogBoxData;

constexpr PictureChoiceNames kOwnPicture{"Sidans bild", "cmdSelectBitmap", "cmdStdBitmap",
                                         "sBitmapFilename", "PictureBitmap"};

} // namespace

PageEditor::PageEditor(const char* name, DialogSwitch page, Session& session, QWidget* parent)
    : EditorForm(name, CaptionOf(page), session, parent), data_(session.project.DialogBoxData)
{
}

QLineEdit* PageEditor::Line(QLineEdit*& member, const char* name, Text DialogBoxData::*field)
{
    return Field(member, name, data_.*field, MaxTextLength(field));
}

QPlainTextEdit* PageEditor::Lines(QPlainTextEdit*& member, const char* name,
                                  Text DialogBoxData::*field)
{
    return Area(member, name, data_.*field, MaxTextLength(field));
}

PictureChoice* PageEditor::OwnPicture(Text DialogBoxData::*field, Text& shown)
{
    shown = data_.*field;
    auto* picture =
        new PictureChoice(kOwnPicture, session_, [&shown](const Text& path) { shown = path; });
    picture->ShowBitmap(shown);
    Bind([this, field, &shown] { data_.*field = shown; });
    return picture;
}

Piece PageEditor::Ending(std::function<void()> test)
{
    Button(NAMED(cmdTest), "Förhands&granska...", std::move(test));
    return HBox({cmdTest, Growing(OkCancel())});
}

} // namespace quillon
