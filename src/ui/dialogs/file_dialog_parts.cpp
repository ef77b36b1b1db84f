#include "ui/dialogs/file_dialog_parts.h"

#include "ui/kit/fit_screen.h"
#include "ui/look/icons.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

// Where Qt's list of places keeps an entry's address.
constexpr int kAddress = Qt::UserRole + 1;

/// Calls a drive by its letter, and not by the folder that replaces it.
class PlaceNames : public QStyledItemDelegate {
public:
    PlaceNames(QMap<QUrl, QString> names, QObject* parent)
        : QStyledItemDelegate(parent), names_(std::move(names))
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto name = names_.find(index.data(kAddress).toUrl());
        if (name == names_.end())
            return;
        option->text = *name;
        option->icon = NamedIcon(name->endsWith('\\') ? "drive" : "home");
    }

private:
    QMap<QUrl, QString> names_;
};

} // namespace

QIcon FilePictures::icon(IconType type) const
{
    switch (type) {
    case Computer:
    case Drive:
    case Network:
        return NamedIcon("drive");
    case Folder:
        return NamedIcon("folder");
    default:
        return NamedIcon("file");
    }
}

QIcon FilePictures::icon(const QFileInfo& file) const
{
    return icon(file.isRoot() ? Drive : file.isDir() ? Folder : File);
}

QString FilePictures::type(const QFileInfo& file) const
{
    if (file.isRoot())
        return "Enhet";
    if (file.isDir())
        return "Katalog";
    const QString ending = file.suffix();
    return ending.isEmpty() ? "Fil" : ending.toUpper() + "-fil";
}

QVariant SwedishColumns::data(const QModelIndex& index, int role) const
{
    enum Column { Name, Size, Kind, Modified };
    const auto* model = qobject_cast<const QFileSystemModel*>(sourceModel());
    const QModelIndex source = mapToSource(index);
    if (model && role == Qt::DisplayRole) {
        const QLocale swedish(QLocale::Swedish);
        if (index.column() == Size && !model->isDir(source))
            return swedish.formattedDataSize(model->size(source), 1,
                                             QLocale::DataSizeTraditionalFormat);
        if (index.column() == Modified)
            return swedish.toString(model->lastModified(source), QLocale::ShortFormat);
    }
    return QIdentityProxyModel::data(index, role);
}

void DrawButtons(QFileDialog& dialog)
{
    constexpr std::pair<const char*, const char*> kButtons[] = {
        {"backButton", "back"},          {"forwardButton", "forward"},
        {"toParentButton", "up"},        {"newFolderButton", "add-folder"},
        {"listModeButton", "view-list"}, {"detailModeButton", "tab-files"}};
    for (const auto& [name, picture] : kButtons)
        if (auto* button = dialog.findChild<QToolButton*>(name))
            button->setIcon(NamedIcon(picture));
}

void LayOut(QFileDialog& dialog)
{
    const QFontMetrics letters = dialog.fontMetrics();
    dialog.resize(QSize(letters.averageCharWidth() * 110, letters.height() * 28)
                      .boundedTo(RoomOnScreen(dialog)));
    if (auto* view = dialog.findChild<QTreeView*>("treeView")) {
        // The name gets the room that the others leave.
        view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        view->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

Places::Places(QFileDialog& dialog, const HostPaths& paths)
    : dialog_(dialog), before_(dialog.sidebarUrls())
{
    const QUrl home = QUrl::fromLocalFile(QDir::homePath());
    QList<QUrl> places{home};
    QMap<QUrl, QString> names{{home, "Hem"}};
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const Text root = Text(1, letter) + ":\\";
        const auto folder = paths.toHost(root);
        if (!folder || !QDir(QString::fromStdString(*folder)).exists())
            continue;
        const QUrl place = QUrl::fromLocalFile(QDir::cleanPath(QString::fromStdString(*folder)));
        places << place;
        names[place] = ToQt(root);
    }
    dialog.setSidebarUrls(places);
    if (auto* sidebar = dialog.findChild<QListView*>("sidebar")) {
        sidebar->setItemDelegate(new PlaceNames(names, sidebar));
        sidebar->setMinimumWidth(dialog.fontMetrics().averageCharWidth() * 16);
    }
}

Places::~Places()
{
    dialog_.setSidebarUrls(before_);
}

} // namespace quillon
