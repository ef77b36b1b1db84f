// The tab "Fillista".
#pragma once

#include "shell/session.h"
#include "ui/Page.h"
#include "ui/host_paths.h"

#include <functional>
#include <vector>

class QMimeData;

namespace quillon {

class FileListView;
class ProjectHeader;

class FilesPage : public Page {
public:
    FilesPage(Session& session, HostPaths paths);

    void ShowSession() override;
    /// All but the rows, which are shown by themselves.
    void ShowAboveRows();
    FileListView& List() { return *list_; }

    /// Called once the drop is over, so that whoever was dragged from does not wait. `refused` are
    /// names of what has no Windows path.
    std::function<void(const std::vector<Text>& paths, const std::vector<Text>& refused)> onDrop;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void TakeDropped(const QMimeData& dropped);

    Session& session_;
    HostPaths paths_;
    ProjectHeader* header_ = nullptr;
    FileListView* list_ = nullptr;
};

} // namespace quillon
