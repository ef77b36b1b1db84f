// The menu bar and the toolbar "Standard", built from the table of commands. The toolbar is built
// again for each tab.
#pragma once

#include "shell/command_table.h"
#include "shell/session.h"

#include <functional>
#include <map>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
class QWidget;

namespace quillon {

class CommandBars {
public:
    using Run = std::function<void(CommandId id)>;
    using CanRun = std::function<bool(CommandId id)>;

    /// Ids that `canRun` denies are shown disabled. `showHelp` is asked for the page of the entry
    /// that is chosen in an open menu when F1 is pressed.
    CommandBars(QMainWindow& window, Run run, CanRun canRun, Run showHelp);

    void ShowToolbar(Tab tab);
    void ShowRecentFiles(const std::array<Text, kRecentFileCount>& files);
    /// Hides the entry of the tab in the window menu, or shows it.
    void ShowTabEntry(Tab tab, bool visible);

    /// The caption of an entry whose command changes; a disabled one has nothing.
    void ShowEntry(CommandId id, const Text& caption, bool canRun);

    /// From now on the keys that work in the file list do so in this widget.
    void GiveListKeys(QWidget& list);

    QAction* ActionOf(CommandId id) const;

private:
    void MakeMenus();
    QMenu* ConnectHelp(QMenu* menu);
    QAction* MakeAction(const Command& command);

    QMainWindow& window_;
    Run run_;
    CanRun canRun_;
    Run showHelp_;
    std::map<CommandId, QAction*> actions_;
    QToolBar* toolbar_ = nullptr;
};

} // namespace quillon
