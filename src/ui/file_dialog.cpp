#include "ui/file_dialog.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

/// "A (*.x)|*.x|B (*.y;*.z)|*.y;*.z" as Qt's "A (*.x)" and "B (*.y *.z)".
QStringList NameFilters(const Text& filter)
{
    QStringList filters;
    const QStringList parts = ToQt(filter).split('|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString caption = parts[i].section('(', 0, 0).trimmed();
        // "*.*" means every file, those without a point too.
        const QString patterns = QString(parts[i + 1]).replace("*.*", "*").replace(';', ' ');
        filters << caption + " (" + patterns + ")";
    }
    return filters;
}

void Prepare(QFileDialog& dialog, const FileQuestion& question, const HostPaths& paths)
{
    dialog.setWindowTitle(ToQt(question.title));
    dialog.setNameFilters(NameFilters(question.filter));
    if (const auto folder = paths.toHost(question.folder); folder && !question.folder.empty())
        if (QDir(QString::fromStdString(*folder)).exists())
            dialog.setDirectory(QString::fromStdString(*folder));
    if (!question.defaultExtension.empty())
        dialog.setDefaultSuffix(ToQt(question.defaultExtension).remove(0, 1));
    if (question.fileName.find('*') == Text::npos)
        dialog.selectFile(ToQt(question.fileName));
}

std::vector<Text> Chosen(QFileDialog& dialog, const HostPaths& paths)
{
    std::vector<Text> files;
    if (dialog.exec() != QDialog::Accepted)
        return files;
    for (const QString& file : dialog.selectedFiles())
        if (const auto path = paths.toWindows(file.toStdString()))
            files.push_back(*path);
    return files;
}

std::optional<Text> First(const std::vector<Text>& files)
{
    return files.empty() ? std::nullopt : std::optional(files.front());
}

} // namespace

std::optional<Text> ChooseFileToOpen(const FileQuestion& question, const HostPaths& paths,
                                     QWidget* parent)
{
    QFileDialog dialog(parent);
    dialog.setFileMode(QFileDialog::ExistingFile);
    Prepare(dialog, question, paths);
    return First(Chosen(dialog, paths));
}

std::vector<Text> ChooseFilesToOpen(const FileQuestion& question, const HostPaths& paths,
                                    QWidget* parent)
{
    QFileDialog dialog(parent);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    Prepare(dialog, question, paths);
    return Chosen(dialog, paths);
}

std::optional<Text> ChooseFileToSave(const FileQuestion& question, const HostPaths& paths,
                                     QWidget* parent)
{
    QFileDialog dialog(parent);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    Prepare(dialog, question, paths);
    return First(Chosen(dialog, paths));
}

} // namespace quillon
