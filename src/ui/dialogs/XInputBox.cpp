#include "ui/dialogs/XInputBox.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kUsualNameLength = 40;

} // namespace

XInputBox::XInputBox(const Text& title, const Text& prompt, QWidget* parent)
    : Form("XInputBox", title, parent)
{
    Arrange(VBox({Above(prompt, MinWidth(kUsualNameLength, Field(NAMED(tInput), Input))), Stretch(),
                  OkCancel()}));
}

std::optional<Text> AskPassword(const Text& title, const Text& prompt, QWidget* parent)
{
    // A file's name in the question may hold the mark of an access letter.
    Text question = "&";
    question += ReplaceAll(prompt, "&", "&&");
    XInputBox form(title, question, parent);
    form.tInput->setEchoMode(QLineEdit::Password);
    return form.ShowModal() ? std::optional(form.Input) : std::nullopt;
}

} // namespace quillon
