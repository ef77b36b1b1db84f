// What commands ask of the main window. It shows the session and never keeps a copy of it: code
// that changes the session says here what has to be shown again.
#pragma once

#include <cstddef>
#include <vector>

namespace quillon {

// The tabs, in their order.
enum class Tab { Files, Design, Dialogs, Registry, IniFiles, Components };
inline constexpr int kTabCount = 6;

class MainWindow {
public:
    virtual ~MainWindow() = default;

    /// Everything that belongs to the project, on all tabs, and the title.
    virtual void ShowProject() = 0;
    virtual void ShowTitle() = 0;
    virtual void ShowRecentFiles() = 0;
    /// The options of the tool: hidden tabs, grid lines, columns, the look of the bars.
    virtual void ShowSettings() = 0;
    /// The tab's own contents, after a command has changed what it shows.
    virtual void ShowTab(Tab tab) = 0;

    virtual void SelectTab(Tab tab) = 0;
    virtual Tab SelectedTab() const = 0;

    /// Shows the rows of the file list again with these selected; then calls `UpdateStatusBar`.
    virtual void ShowFileList(const std::vector<std::size_t>& selectedRows) = 0;
    /// The numbers of the selected rows, ascending.
    virtual std::vector<std::size_t> SelectedRows() const = 0;

    /// The number of rows and their size in the first pane of the status bar.
    virtual void UpdateStatusBar() = 0;
};

} // namespace quillon
