#include "app/pages/FilesPage.h"

#include "app/file_list/FileListView.h"
#include "app/file_list/FindBar.h"
#include "app/pages/ProjectHeader.h"
#include "app/window/dropped_project.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

FilesPage::FilesPage(Session& session, HostPaths paths)
    : session_(session), paths_(std::move(paths)), header_(new ProjectHeader(session)),
      list_(new FileListView(session.project, session.Settings)),
      find_(new FindBar(session.project.Files, *list_))
{
    setObjectName("FilesPage");
    setAcceptDrops(true);
    Arrange(this, VBox({header_, Growing(list_), find_}));
}

void FilesPage::ShowSession()
{
    ShowAboveRows();
    list_->ShowRows({});
}

void FilesPage::ShowAboveRows()
{
    header_->ShowSession();
    list_->ShowComponentColumns();
}

void FilesPage::OpenFind()
{
    find_->Open();
}

void FilesPage::dragEnterEvent(QDragEnterEvent* event)
{
    // A dropped project is opened by the main window.
    if (onDrop && event->mimeData()->hasUrls() && !DroppedProject(*event->mimeData(), paths_))
        event->acceptProposedAction();
}

void FilesPage::dropEvent(QDropEvent* event)
{
    // The files stay where they are, whatever the other program proposes.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    TakeFiles(*event->mimeData());
}

void FilesPage::TakeFiles(const QMimeData& files)
{
    std::vector<Text> taken;
    std::vector<Text> refused;
    for (const QUrl& url : files.urls()) {
        const std::string file = url.toLocalFile().toStdString();
        const auto path = file.empty() ? std::nullopt : paths_.toWindows(file);
        if (path)
            taken.push_back(*path);
        else
            refused.push_back(FromQt(file.empty() ? url.toDisplayString() : url.toLocalFile()));
    }
    QTimer::singleShot(0, this, [this, taken, refused] { onDrop(taken, refused); });
}

} // namespace quillon
