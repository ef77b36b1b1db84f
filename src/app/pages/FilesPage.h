// The tab "Fillista".
#pragma once

#include "shell/session.h"
#include "ui/dialogs/host_paths.h"
#include "ui/kit/Page.h"

#include <functional>
#include <vector>

class QMimeData;

namespace quillon {

class FileListView;
class FindBar;
class ProjectHeader;

class FilesPage : public Page {
public:
    FilesPage(Session& session, HostPaths paths);

    void ShowSession() override;
    /// All but the rows, which `MainWindow::ShowFileList` shows.
    void ShowAboveRows();
    FileListView& List() { return *list_; }
    /// Opens the bar that looks for rows.
    void OpenFind();
    /// Takes in the files that another program has dropped here or laid on the clipboard.
    void TakeFiles(const QMimeData& files);

    /// Called once the files are taken, so that the program that they were dragged from need not
    /// wait. `refused` are names of what has no Windows path.
    std::function<void(const std::vector<Text>& paths, const std::vector<Text>& refused)> onDrop;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    Session& session_;
    HostPaths paths_;
    ProjectHeader* header_ = nullptr;
    FileListView* list_ = nullptr;
    FindBar* find_ = nullptr;
};

} // namespace quillon
