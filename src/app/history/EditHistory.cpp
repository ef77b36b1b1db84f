#include "app/history/EditHistory.h"

#include "app/history/edit_name.h"

#include <QtWidgets>

namespace quillon {

namespace {

using Changed = ProjectHistory::Changed;

constexpr const char* kTyping = "skrivning";

bool CanUndo(const QLineEdit& field)
{
    return field.isUndoAvailable();
}

bool CanUndo(const QPlainTextEdit& area)
{
    return area.document()->isUndoAvailable();
}

bool CanRedo(const QLineEdit& field)
{
    return field.isRedoAvailable();
}

bool CanRedo(const QPlainTextEdit& area)
{
    return area.document()->isRedoAvailable();
}

/// The result of `use` for the field that has the keyboard; false where none has.
template <class Use>
bool OfField(const QWidget& window, Use use)
{
    QWidget* focus = window.focusWidget();
    if (auto* field = qobject_cast<QLineEdit*>(focus))
        return use(*field);
    if (auto* area = qobject_cast<QPlainTextEdit*>(focus))
        return use(*area);
    return false;
}

} // namespace

EditHistory::EditHistory(Session& session, const QWidget& window)
    : window_(window), history_(session.project, session.state)
{
}

void EditHistory::Begin()
{
    history_.Begin();
}

bool EditHistory::IsBusy() const
{
    return runningCommands_ > 0 || QApplication::activeModalWidget();
}

bool EditHistory::IsTyping() const
{
    return window_.isActiveWindow() &&
           OfField(window_, [](const auto& field) { return !field.isReadOnly(); });
}

void EditHistory::Run(const Text& name, const std::function<void()>& work)
{
    if (runningCommands_ == 0)
        EndPageEdit();
    ++runningCommands_;
    work();
    if (--runningCommands_ > 0)
        return;
    if (name.empty())
        history_.MergeIntoLastStep(Changed::SettingsAndRows);
    else
        history_.Record(name, Changed::SettingsAndRows);
}

void EditHistory::NotePageEdit()
{
    if (!IsTyping())
        EndPageEdit();
}

void EditHistory::GoToTab(Tab tab)
{
    EndPageEdit();
    tab_ = tab;
}

void EditHistory::EndPageEdit()
{
    if (!IsBusy())
        history_.Record(EditName(tab_), Changed::Settings);
}

void EditHistory::MergeIntoLastStep()
{
    if (!IsBusy())
        history_.MergeIntoLastStep(Changed::Settings);
}

std::optional<Text> EditHistory::UndoName() const
{
    if (OfField(window_, [](const auto& field) { return CanUndo(field); }))
        return kTyping;
    const Text* name = history_.UndoName();
    return name ? std::optional(*name) : std::nullopt;
}

std::optional<Text> EditHistory::RedoName() const
{
    if (OfField(window_, [](const auto& field) { return CanRedo(field); }))
        return kTyping;
    const Text* name = history_.RedoName();
    return name ? std::optional(*name) : std::nullopt;
}

bool EditHistory::UndoInField()
{
    return OfField(window_, [](auto& field) {
        const bool canUndo = CanUndo(field);
        field.undo();
        return canUndo;
    });
}

bool EditHistory::RedoInField()
{
    return OfField(window_, [](auto& field) {
        const bool canRedo = CanRedo(field);
        field.redo();
        return canRedo;
    });
}

ProjectHistory::Restored EditHistory::Undo()
{
    return history_.Undo();
}

ProjectHistory::Restored EditHistory::Redo()
{
    return history_.Redo();
}

} // namespace quillon
