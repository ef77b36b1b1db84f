// Undo and redo of the main window. A command, with all dialogs that it opens, is one step; so is
// what is changed on a page until the window waits for input again. What is typed into a field of a
// page becomes a step when the field is left; until then Undo acts on the field alone.
#pragma once

#include "shell/main_window.h"
#include "shell/project_history.h"
#include "shell/session.h"

#include <functional>
#include <optional>

class QWidget;

namespace quillon {

class EditHistory {
public:
    EditHistory(Session& session, const QWidget& window);

    /// Another project is open.
    void Begin();

    /// Runs a command, whose changes become a step of this name; without a name they belong to the
    /// step before. A command that runs inside another one is a part of it.
    void Run(const Text& name, const std::function<void()>& work);

    /// Before the window waits: what was changed on the page becomes a step, unless it is still
    /// being typed.
    void NotePageEdit();
    /// Another tab is in front.
    void GoToTab(Tab tab);
    /// What has changed since is no step of its own.
    void MergeIntoLastStep();

    /// What would be undone and done again, a field's own text too; nothing where nothing would.
    std::optional<Text> UndoName() const;
    std::optional<Text> RedoName() const;

    // In the field that has the keyboard; false where it has nothing of its own.
    bool UndoInField();
    bool RedoInField();
    // There must be such a step.
    ProjectHistory::Restored Undo();
    ProjectHistory::Restored Redo();

    const ProjectHistory& History() const { return history_; }

private:
    bool IsBusy() const;
    bool IsTyping() const;
    void EndPageEdit();

    const QWidget& window_;
    ProjectHistory history_;
    int runningCommands_ = 0;
    Tab tab_ = Tab::Files;
};

} // namespace quillon
