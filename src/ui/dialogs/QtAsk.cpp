#include "ui/dialogs/QtAsk.h"

#include "ui/dialogs/FontForm.h"
#include "ui/dialogs/SelectDir.h"
#include "ui/dialogs/XInputBox.h"
#include "ui/dialogs/file_dialog.h"
#include "ui/dialogs/message_box.h"
#include "ui/qt_colour.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

QWidget* WindowInFront()
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

/// One question over the window in front. A command may ask in the midst of its work, and a busy
/// pointer would say that there is nothing to click: it is away for as long as the question is up.
class Question {
public:
    Question()
    {
        while (const QCursor* pointer = QApplication::overrideCursor()) {
            lifted_.push_back(*pointer);
            QApplication::restoreOverrideCursor();
        }
    }
    ~Question()
    {
        while (!lifted_.empty()) {
            QApplication::setOverrideCursor(lifted_.back());
            lifted_.pop_back();
        }
    }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;

    QWidget* Parent() const { return parent_; }

private:
    QWidget* parent_ = WindowInFront();
    std::vector<QCursor> lifted_; // the innermost first
};

struct BoxButton {
    QMessageBox::StandardButton button;
    const char* caption;
};

/// Shows a box with these buttons; Esc and the window's close button give the last of them.
QMessageBox::StandardButton ShowBox(QMessageBox::Icon icon, const Text& title, const Text& text,
                                    std::initializer_list<BoxButton> buttons)
{
    const Question asking;
    QMessageBox box(icon, ToQt(title), ToQt(text), QMessageBox::NoButton, asking.Parent());
    box.setTextFormat(Qt::PlainText);
    box.setObjectName("MsgBox");
    ShowOwnPicture(box);
    for (const BoxButton& button : buttons) {
        box.addButton(button.button)->setText(QString::fromUtf8(button.caption));
        box.setEscapeButton(button.button);
    }
    box.setDefaultButton(buttons.begin()->button);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

constexpr BoxButton kOk{QMessageBox::Ok, "OK"};
constexpr BoxButton kYes{QMessageBox::Yes, "&Ja"};
constexpr BoxButton kNo{QMessageBox::No, "&Nej"};
constexpr BoxButton kCancel{QMessageBox::Cancel, "Avbryt"};

} // namespace

void QtAsk::Inform(const Text& title, const Text& text)
{
    ShowBox(QMessageBox::Information, title, text, {kOk});
}

void QtAsk::Warn(const Text& title, const Text& text)
{
    ShowBox(QMessageBox::Warning, title, text, {kOk});
}

void QtAsk::Critical(const Text& title, const Text& text)
{
    ShowBox(QMessageBox::Critical, title, text, {kOk});
}

bool QtAsk::YesNo(const Text& title, const Text& text, Stops)
{
    return ShowBox(QMessageBox::Warning, title, text, {kYes, kNo}) == QMessageBox::Yes;
}

bool QtAsk::OkCancel(const Text& title, const Text& text)
{
    return ShowBox(QMessageBox::Information, title, text, {kOk, kCancel}) == QMessageBox::Ok;
}

Answer QtAsk::YesNoCancel(const Text& title, const Text& text)
{
    switch (ShowBox(QMessageBox::Question, title, text, {kYes, kNo, kCancel})) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

std::optional<Text> QtAsk::OpenFile(const FileQuestion& question)
{
    const Question asking;
    return ChooseFileToOpen(question, paths_, asking.Parent());
}

std::vector<Text> QtAsk::OpenFiles(const FileQuestion& question)
{
    const Question asking;
    return ChooseFilesToOpen(question, paths_, asking.Parent());
}

std::optional<Text> QtAsk::SaveFile(const FileQuestion& question)
{
    const Question asking;
    return ChooseFileToSave(question, paths_, asking.Parent());
}

std::optional<Text> QtAsk::SelectDir(const Text& text, const Text& folder)
{
    const Question asking;
    quillon::SelectDir form(host_.files, *this, text, folder, asking.Parent(), paths_);
    return form.ShowModal() ? std::optional(form.Folder) : std::nullopt;
}

std::optional<Text> QtAsk::XInputBox(const Text& title, const Text& prompt)
{
    const Question asking;
    quillon::XInputBox form(title, prompt, asking.Parent());
    return form.ShowModal() ? std::optional(form.Input) : std::nullopt;
}

std::optional<Text> QtAsk::ChooseDestination(const DestinationQuestion& question)
{
    if (!onChooseDestination)
        return {};
    const Question asking;
    return onChooseDestination(question, asking.Parent());
}

std::optional<Text> QtAsk::ChooseComponent(const std::vector<Text>& entries)
{
    if (!onChooseComponent)
        return {};
    const Question asking;
    return onChooseComponent(entries, asking.Parent());
}

std::optional<Text> QtAsk::ChooseVariable()
{
    if (!onChooseVariable)
        return {};
    const Question asking;
    return onChooseVariable(asking.Parent());
}

std::optional<Long> QtAsk::ChooseColour(Long current)
{
    const Question asking;
    QColorDialog form(ToQtColour(current), asking.Parent());
    form.setOption(QColorDialog::DontUseNativeDialog);
    if (form.exec() != QDialog::Accepted)
        return {};
    return FromQtColour(form.currentColor());
}

std::optional<FontChoice> QtAsk::ChooseFont(const FontChoice& current)
{
    const Question asking;
    FontForm form(current, *this, asking.Parent());
    return form.ShowModal() ? std::optional(form.Chosen) : std::nullopt;
}

void QtAsk::ShowBusyPointer(bool busy)
{
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtAsk::ShowStatusText(const Text& text)
{
    if (onStatusText)
        onStatusText(text);
}

void QtAsk::Beep()
{
    QApplication::beep();
}

void QtAsk::ProcessEvents()
{
    QCoreApplication::processEvents();
}

} // namespace quillon
