// The main window: six pages behind tabs, the command bars, the status bar. What it shows is the
// session's; what its commands do is in the table of actions.
#pragma once

#include "app/commands/actions.h"
#include "shell/main_window.h"
#include "shell/project_history.h"
#include "shell/session.h"
#include "ui/dialogs/host_paths.h"
#include "ui/kit/Page.h"

#include <QMainWindow>
#include <array>
#include <functional>
#include <map>

class QAction;
class QLabel;
class QToolBar;

namespace quillon {

class CommandBars;
class DesignScreen;
class EditHistory;
class FilesPage;
class MainTabs;

class MainForm : public QMainWindow, public MainWindow {
public:
    /// `paths` maps what is dropped on the window or typed as a path of this machine.
    explicit MainForm(Session& session, HostPaths paths = {});
    ~MainForm() override;

    Session& GetSession() { return session_; }
    const HostPaths& Paths() const { return paths_; }

    void ShowProject() override;
    void ShowTitle() override;
    void ShowRecentFiles() override;
    void ShowSettings() override;
    void ShowTab(Tab tab) override;
    void SelectTab(Tab tab) override;
    Tab SelectedTab() const override;
    void ShowFileList(const std::vector<std::size_t>& selectedRows) override;
    std::vector<std::size_t> SelectedRows() const override;
    void UpdateStatusBar() override;

    DesignScreen& Design();
    FilesPage& Files() { return *files_; }
    Page& SelectedPage() { return PageOf(SelectedTab()); }

    /// Runs the command with this id; one without an action does nothing.
    void RunCommand(CommandId id);
    /// What the action changes can be undone as a step of this name; without a name as a part of
    /// the step before it.
    void Run(Action action, const Text& editName);

    EditHistory& Edits() { return *edits_; }
    /// Shows what an undone step has changed.
    void ShowRestored(const ProjectHistory::Restored& restored);

    /// Shows the status text of a long command; an empty one gives the bar back.
    void ShowStatusText(const Text& text);

    /// Run once, after the first time that the window is shown.
    std::function<void()> onFirstActivation;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void MakePages();
    void ConnectFileList();
    void ConnectEdits();
    void ShowSelection();
    void RunGuarded(const std::function<void()>& run, const Text& editName);
    void MakeStatusBar();
    void ShowUnsavedChanges();
    void ShowEdits();
    Page& PageOf(Tab tab) { return *pages_[static_cast<std::size_t>(tab)]; }

    Session& session_;
    std::unique_ptr<EditHistory> edits_;
    HostPaths paths_;
    MainTabs* MainTab_ = nullptr;
    QLabel* statusPane_ = nullptr;
    QLabel* unsavedPane_ = nullptr;
    std::array<Page*, kTabCount> pages_{};
    FilesPage* files_ = nullptr;
    // The first pane shows the selected rows instead of all.
    bool paneTellsSelection_ = false;
    std::unique_ptr<CommandBars> bars_;
};

} // namespace quillon
