#include "ui/kit/Form.h"

#include "shell/session.h"
#include "ui/kit/fit_screen.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <algorithm>
#include <map>

namespace quillon {

namespace {

/// Options shut each other out from the moment on when they are in one frame; what was chosen
/// before that stays chosen.
void ChooseOneOption(const QWidget& form)
{
    std::map<const QWidget*, QRadioButton*> chosen;
    for (auto* option : form.findChildren<QRadioButton*>()) {
        if (!option->isChecked())
            continue;
        QRadioButton*& before = chosen[option->parentWidget()];
        if (before)
            before->setChecked(false);
        before = option;
    }
}

} // namespace

Form::Form(const char* name, const Text& title, QWidget* parent) : QDialog(parent)
{
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(ToQt(title));
}

bool Form::ShowModal()
{
    OK = false;
    exec();
    return OK;
}

QLineEdit* Form::Field(QLineEdit*& member, const char* name, Text& value, int maxLength)
{
    auto* field = Named(member, name, new QLineEdit(ToQt(value)));
    LimitTyping(field, maxLength);
    limits_.push_back({field, maxLength});
    Bind([field, &value] { value = FromQt(field->text()); });
    return field;
}

QPlainTextEdit* Form::Area(QPlainTextEdit*& member, const char* name, Text& value, int maxLength)
{
    auto* area = Named(member, name, new QPlainTextEdit(LinesToQt(value)));
    area->setTabChangesFocus(true);
    LimitTyping(area, maxLength);
    limits_.push_back({area, maxLength});
    Bind([area, &value] { value = LinesFromQt(TypedText(area)); });
    return area;
}

QCheckBox* Form::Check(QCheckBox*& member, const char* name, const Text& caption, Flag& value)
{
    auto* box = Named(member, name, new QCheckBox(ToQt(caption)));
    box->setChecked(value != kOff);
    Bind([box, &value] { value = box->isChecked() ? kOn : kOff; });
    return box;
}

QCheckBox* Form::Check01(QCheckBox*& member, const char* name, const Text& caption, Integer& value)
{
    auto* box = Named(member, name, new QCheckBox(ToQt(caption)));
    box->setChecked(value != 0);
    Bind([box, &value] { value = box->isChecked() ? 1 : 0; });
    return box;
}

QRadioButton* Form::Option(QRadioButton*& member, const char* name, const Text& caption,
                           Flag& value)
{
    auto* option = Named(member, name, new QRadioButton(ToQt(caption)));
    option->setChecked(value != kOff);
    Bind([option, &value] { value = option->isChecked() ? kOn : kOff; });
    return option;
}

QComboBox* Form::Choice(QComboBox*& member, const char* name, std::span<const char* const> rows,
                        Integer& value)
{
    auto* list = Named(member, name, new QComboBox);
    for (const char* row : rows)
        list->addItem(QString::fromUtf8(row));
    list->setCurrentIndex(value >= 0 && value < list->count() ? value : -1);
    Bind([list, &value] {
        if (list->currentIndex() >= 0)
            value = static_cast<Integer>(list->currentIndex());
    });
    return list;
}

QPushButton* Form::Button(QPushButton*& member, const char* name, const Text& caption,
                          std::function<void()> press)
{
    auto* button = Named(member, name, new QPushButton(ToQt(caption)));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [press = std::move(press)] { press(); });
    return button;
}

Piece Form::OkCancel()
{
    Button(NAMED(cmdOK), "OK", [this] { PressOk(); });
    Button(NAMED(cmdCancel), "Avbryt", [this] { reject(); });
    cmdOK->setDefault(true);
    cmdOK->setMinimumWidth(cmdCancel->sizeHint().width());
    // Pressing the button with the mouse does not take the focus: the box of a field's check would
    // take the release of the mouse button, and the button would stay down. OK moves the focus out
    // of the field when it is clicked, and Cancel needs no checks.
    for (QPushButton* button : {cmdOK, cmdCancel})
        button->setFocusPolicy(Qt::TabFocus);
    return HBox({Stretch(), cmdOK, cmdCancel});
}

Piece Form::OkOnly()
{
    Button(NAMED(cmdOK), "OK", [this] { PressOk(); });
    cmdOK->setDefault(true);
    return HBox({Stretch(), cmdOK});
}

void Form::Arrange(Piece pieces)
{
    quillon::Arrange(this, pieces);
    ChooseOneOption(*this);
}

bool Form::event(QEvent* event)
{
    // Just before the form is shown for the first time.
    if (event->type() == QEvent::Polish)
        FitInto(*this, RoomOnScreen(*this));
    const bool isHandled = QDialog::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        KeepTextWhole();
    return isHandled;
}

// A layout does not ask running text for its height at a given width. Before a form is shown it may
// be narrower than it ever is on the screen, which would open it much too high.
void Form::KeepTextWhole()
{
    if (layout() && layout()->hasHeightForWidth())
        setMinimumHeight(layout()->totalMinimumHeightForWidth(
            std::max(width(), layout()->totalMinimumSize().width())));
}

void Form::PressOk()
{
    // Takes the focus out of a field that is being typed in, so that its checks run.
    if (QWidget* focus = focusWidget(); focus && cmdOK)
        cmdOK->setFocus();
    const auto isTooLong = [](const Limit& limit) {
        return WarnIfTooLong(limit.field, limit.maxLength);
    };
    if (std::ranges::any_of(limits_, isTooLong) || !MayClose())
        return;
    for (const auto& store : stores_)
        store();
    OK = true;
    Store();
    accept();
}

EditorForm::EditorForm(const char* name, const Text& title, Session& session, QWidget* parent)
    : Form(name, title, parent), session_(session)
{
}

void EditorForm::Store()
{
    session_.state.ProjectIsDirty = kOn;
}

} // namespace quillon
