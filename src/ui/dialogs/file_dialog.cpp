#include "ui/dialogs/file_dialog.h"

#include "helpers/ansi_text.h"
#include "helpers/drive_path.h"
#include "ui/dialogs/file_dialog_parts.h"
#include "ui/dialogs/message_box.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

/// "*.x;*.y" as Qt's patterns. "*.*" means every file, those without a dot too.
QStringList PatternsOf(QString patterns)
{
    return patterns.replace("*.*", "*").split(';', Qt::SkipEmptyParts);
}

/// "A (*.x)|*.x|B (*.y;*.z)|*.y;*.z" as Qt's "A (*.x)" and "B (*.y *.z)".
QStringList NameFilters(const Text& filter)
{
    QStringList filters;
    const QStringList parts = ToQt(filter).split('|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString caption = parts[i].section('(', 0, 0).trimmed();
        filters << caption + " (" + PatternsOf(parts[i + 1]).join(' ') + ")";
    }
    return filters;
}

/// The patterns of Qt's "A (*.x *.y)".
QStringList PatternsIn(const QString& filter)
{
    return filter.section('(', -1).chopped(1).split(' ', Qt::SkipEmptyParts);
}

/// "*.ini" instead of a name, which no file of Windows has.
bool IsPattern(const QString& typed)
{
    return typed.contains('*') || typed.contains('?');
}

/// Qt's own dialog on every desktop, since that of a desktop speaks the desktop's language and has
/// no drive letters.
class FileDialog : public QFileDialog {
public:
    FileDialog(const FileQuestion& question, const HostPaths& paths, QWidget* parent);

    std::vector<Text> Ask();

protected:
    void accept() override;

private:
    void OpenFolder(const Text& folder);
    void AcceptWindowsPaths();
    bool TakeTypedPattern();
    bool TakeTypedWindowsPath();
    void AddMissingExtension();
    void PreferTypedNames();
    bool RefusesAFile();
    void Refuse(const QString& text);

    const HostPaths& paths_;
    const bool isForProject_;
    FilePictures pictures_;
};

FileDialog::FileDialog(const FileQuestion& question, const HostPaths& paths, QWidget* parent)
    : QFileDialog(parent), paths_(paths), isForProject_(question.isForProject)
{
    setObjectName("FileDialog");
    setOption(QFileDialog::DontUseNativeDialog);
    setIconProvider(&pictures_);
    setProxyModel(new SwedishColumns(this));
    setViewMode(question.look == FileQuestion::Look::Details ? QFileDialog::Detail
                                                             : QFileDialog::List);
    setWindowTitle(ToQt(question.title));
    setNameFilters(NameFilters(question.filter));
    OpenFolder(question.folder);
    if (!question.defaultExtension.empty())
        setDefaultSuffix(ToQt(question.defaultExtension).remove(0, 1));
    DrawButtons(*this);
    LayOut(*this);
    AcceptWindowsPaths();
    auto* name = findChild<QLineEdit*>("fileNameEdit");
    name->setText(ToQt(question.fileName));
    name->selectAll();
}

/// Qt disables the button for a name that is no file of this machine, and for a pattern.
void FileDialog::AcceptWindowsPaths()
{
    auto* field = findChild<QLineEdit*>("fileNameEdit");
    auto* buttons = findChild<QDialogButtonBox*>("buttonBox");
    connect(field, &QLineEdit::textChanged, this, [this, buttons](const QString& typed) {
        const auto which =
            acceptMode() == AcceptSave ? QDialogButtonBox::Save : QDialogButtonBox::Open;
        if (IsDrivePath(FromQt(typed.trimmed())) || IsPattern(typed))
            buttons->button(which)->setEnabled(true);
    });
}

void FileDialog::OpenFolder(const Text& folder)
{
    // Where there is no such folder, Qt opens the last one in which a file was chosen.
    const auto hostFolder = folder.empty() ? std::nullopt : paths_.toHost(folder);
    if (hostFolder && QDir(QString::fromStdString(*hostFolder)).exists())
        setDirectory(QString::fromStdString(*hostFolder));
}

std::vector<Text> FileDialog::Ask()
{
    const Places places(*this, paths_);
    std::vector<Text> files;
    if (exec() == QDialog::Accepted)
        for (const QString& file : selectedFiles())
            if (const auto path = paths_.toWindows(file.toStdString()))
                files.push_back(*path);
    return files;
}

void FileDialog::accept()
{
    if (TakeTypedPattern())
        return;
    PreferTypedNames();
    AddMissingExtension();
    if (TakeTypedWindowsPath() && !RefusesAFile())
        QFileDialog::accept();
}

/// While `"a.txt" "b.txt"` is typed, Qt selects the first of them in the list, and would then
/// return that selection.
void FileDialog::PreferTypedNames()
{
    auto* field = findChild<QLineEdit*>("fileNameEdit");
    const QString typed = field->text();
    if (typed.count('"') <= 2)
        return;
    for (auto* view : findChildren<QAbstractItemView*>())
        if (view->selectionModel() &&
            (view->objectName() == "treeView" || view->objectName() == "listView"))
            view->clearSelection();
    field->setText(typed);
}

/// As in Windows, a typed "*.txt" shows these files and leaves the dialog open.
bool FileDialog::TakeTypedPattern()
{
    auto* field = findChild<QLineEdit*>("fileNameEdit");
    const QString typed = field->text().trimmed();
    if (!IsPattern(typed))
        return false;
    if (auto* files = findChild<QFileSystemModel*>())
        files->setNameFilters(PatternsOf(typed));
    field->selectAll();
    return true;
}

/// Qt gives no extension to a name that has a dot, such as one with a version, and the file would
/// be hidden from the dialog that opens it.
void FileDialog::AddMissingExtension()
{
    auto* field = findChild<QLineEdit*>("fileNameEdit");
    const QString typed = field->text().trimmed();
    const bool isName = !typed.isEmpty() && !typed.contains('"') && !QFileInfo(typed).isDir() &&
                        !typed.endsWith('/') && !typed.endsWith('\\');
    if (acceptMode() != AcceptSave || defaultSuffix().isEmpty() || !isName)
        return;
    const QStringList patterns = PatternsIn(selectedNameFilter());
    const bool isOfFilter = std::ranges::any_of(patterns, [&](const QString& pattern) {
        return pattern == "*" || pattern == "*.*" ||
               typed.endsWith(pattern.mid(1), Qt::CaseInsensitive);
    });
    if (!isOfFilter)
        field->setText(typed + '.' + defaultSuffix());
}

/// A typed "C:\Data\a.txt" is looked up where drive C: lies here. False where there is no such
/// drive.
bool FileDialog::TakeTypedWindowsPath()
{
    auto* field = findChild<QLineEdit*>("fileNameEdit");
    if (!field || !IsDrivePath(FromQt(field->text().trimmed())))
        return true;
    const QString typed = field->text().trimmed();
    const auto hostPath = paths_.toHost(FromQt(typed));
    if (!hostPath) {
        Refuse("Enheten " + typed.left(2).toUpper() +
               " finns inte på den här datorn. Enheter anges i miljövariabeln QUILLON_DRIVES.");
        return false;
    }
    field->setText(QString::fromStdString(*hostPath));
    return true;
}

/// Whether a chosen file has a name that no project can hold. In the project it would be lost, or
/// name another file.
bool FileDialog::RefusesAFile()
{
    for (const QString& file : selectedFiles()) {
        if (QFileInfo(file).isDir())
            continue;
        const auto path = paths_.toWindows(file.toStdString());
        if (path && (!isForProject_ || AnsiText::Holds(*path)))
            continue;
        Refuse(path ? "Filen '" + file +
                          "' kan inte användas, eftersom namnet eller sökvägen innehåller tecken "
                          "som inte får plats i ett projekt. Byt namn på filen eller katalogen!"
                    : "Filen '" + file +
                          "' kan inte användas, eftersom dess sökväg inte går att skriva som en "
                          "sökväg i Windows. Byt namn på filen eller katalogen!");
        return true;
    }
    return false;
}

void FileDialog::Refuse(const QString& text)
{
    QMessageBox box(QMessageBox::Information, "Fel", text, QMessageBox::NoButton, this);
    box.setObjectName("MsgBox");
    box.setTextFormat(Qt::PlainText);
    ShowOwnPicture(box);
    box.addButton(QMessageBox::Ok)->setText("OK");
    box.exec();
}

std::optional<Text> First(const std::vector<Text>& files)
{
    return files.empty() ? std::nullopt : std::optional(files.front());
}

} // namespace

std::optional<Text> ChooseFileToOpen(const FileQuestion& question, const HostPaths& paths,
                                     QWidget* parent)
{
    FileDialog dialog(question, paths, parent);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return First(dialog.Ask());
}

std::vector<Text> ChooseFilesToOpen(const FileQuestion& question, const HostPaths& paths,
                                    QWidget* parent)
{
    FileDialog dialog(question, paths, parent);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    return dialog.Ask();
}

std::optional<Text> ChooseFileToSave(const FileQuestion& question, const HostPaths& paths,
                                     QWidget* parent)
{
    FileDialog dialog(question, paths, parent);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    return First(dialog.Ask());
}

} // namespace quillon
