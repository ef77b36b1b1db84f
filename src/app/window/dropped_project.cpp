#include "app/window/dropped_project.h"

#include "project/project_file.h"

#include <QtWidgets>

namespace quillon {

std::optional<Text> DroppedProject(const QMimeData& dropped, const HostPaths& paths)
{
    const QList<QUrl> urls = dropped.urls();
    if (urls.size() != 1 || !paths.toWindows)
        return std::nullopt;
    const QString file = urls.front().toLocalFile();
    if (!file.endsWith(kProjectFileExtension, Qt::CaseInsensitive) || QFileInfo(file).isDir())
        return std::nullopt;
    return paths.toWindows(file.toStdString());
}

} // namespace quillon
