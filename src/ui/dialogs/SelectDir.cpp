#include "ui/dialogs/SelectDir.h"

#include "formats/row_safety.h"
#include "helpers/ansi_text.h"
#include "helpers/drive_path.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/volume_name.h"
#include "ui/kit/typed_text.h"
#include "ui/look/icons.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kPath = Qt::UserRole;
constexpr int kIsFilled = Qt::UserRole + 1;
constexpr std::size_t kMaxPathBytes = 255;
constexpr char kFirstDrive[] = "C:\\";

Text PathOf(const QStandardItem* item)
{
    return FromQt(item->data(kPath).toString());
}

QStandardItem* FolderItem(const Text& path, const Text& caption, const QIcon& picture)
{
    auto* item = new QStandardItem(picture, ToQt(caption));
    item->setData(ToQt(path), kPath);
    item->setEditable(false);
    return item;
}

bool IsValidInPath(const Text& name)
{
    return AnsiText::Holds(name) && name.find('\\') == Text::npos;
}

/// The names of the folders in a folder, in order. A folder that can't be read has none.
std::vector<Text> FoldersIn(const FileSystem& files, const Text& folder)
{
    std::vector<Text> names;
    try {
        for (const FolderEntry& entry : files.List(folder))
            if (entry.status.isFolder && !entry.status.isHidden && IsValidInPath(entry.name))
                names.push_back(entry.name);
    } catch (const RunError&) {
        return {};
    }
    const QCollator order{QLocale(QLocale::Swedish)};
    std::vector<std::pair<QCollatorSortKey, Text>> sorted;
    for (const Text& name : names)
        sorted.emplace_back(order.sortKey(ToQt(name)), name);
    std::ranges::sort(sorted, [](const auto& a, const auto& b) { return a.first < b.first; });
    std::ranges::transform(sorted, names.begin(), [](const auto& one) { return one.second; });
    return names;
}

/// The root of a folder's drive, "C:\", or nothing.
Text RootOf(const Text& folder)
{
    return BeginsWithDrive(folder) ? UpperCase(folder.substr(0, 1)) + ":\\" : Text();
}

Text ParentOf(const Text& folder)
{
    return folder.size() <= 3 ? Text() : ExtractDirectory(RemoveLastBackslash(folder));
}

/// Fills an item of the tree when the view opens it, and reports to the view that a folder not
/// looked into yet may have folders.
class FolderTree : public QStandardItemModel {
public:
    explicit FolderTree(QObject* parent) : QStandardItemModel(parent) {}

    bool hasChildren(const QModelIndex& index) const override
    {
        return QStandardItemModel::hasChildren(index) ||
               (index.isValid() && !index.data(kIsFilled).toBool());
    }
};

} // namespace

SelectDir::SelectDir(FileSystem& files, Ask& ask, const Text& text, const Text& folder,
                     QWidget* parent, HostPaths paths)
    : Form("SelectDir", "Välj katalog", parent), files_(files), ask_(ask), paths_(std::move(paths))
{
    MakeControls(text);
    FillDrives();
    Arrange(VBox({
        sDialogText,
        Fields({{"&Enhet:", DriveListX}}),
        Growing(DirTreeX),
        Fields({{"Ka&talog:", sDirectory}}),
        HBox({cmdNewDirectory, OkCancel()}),
    }));
    ShowFolder(NearestFolder(ResolvePath(folder)));
    FollowTree();
    DirTreeX->setFocus();
}

void SelectDir::MakeControls(const Text& text)
{
    Named(NAMED(sDialogText), Note(text));
    Named(NAMED(DriveListX), new QComboBox);
    Named(NAMED(DirTreeX), new QTreeView, "Kataloger");
    Named(NAMED(sDirectory), new QLineEdit);
    // Any length, since a folder of the tree must not be cut; one that is too long is refused.
    LimitTyping(sDirectory, 0);
    Button(NAMED(cmdNewDirectory), "&Ny katalog...", [this] { MakeNewDirectory(); });

    tree_ = new FolderTree(this);
    DirTreeX->setModel(tree_);
    DirTreeX->setHeaderHidden(true);
    // With rows of one height thousands of folders are laid out at once.
    DirTreeX->setUniformRowHeights(true);
    const QFontMetrics letters(font());
    DirTreeX->setMinimumSize(letters.averageCharWidth() * 56, letters.height() * 16);

    connect(DirTreeX, &QTreeView::expanded, this,
            [this](const QModelIndex& index) { FillItem(tree_->itemFromIndex(index)); });
    connect(DirTreeX->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { FollowTree(); });
    connect(DriveListX, &QComboBox::activated, this, [this] { ChooseDrive(); });
    connect(sDirectory, &QLineEdit::textEdited, this, [this] { FollowTyping(); });
}

void SelectDir::FillDrives()
{
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const Text root = Text(1, letter) + ":\\";
        const DriveKind kind = files_.DriveType(root);
        if (kind == DriveKind::NoRoot || kind == DriveKind::Unknown)
            continue;
        const Text volume = VolumeNameIfAny(files_, root);
        const Text caption = volume.empty() ? root : root + "  (" + volume + ")";
        DriveListX->addItem(NamedIcon("drive"), ToQt(caption), ToQt(root));
    }
}

void SelectDir::ChooseDrive()
{
    ShowDrive(FromQt(DriveListX->currentData().toString()));
    DirTreeX->setCurrentIndex(tree_->index(0, 0));
}

void SelectDir::ShowDrive(const Text& root)
{
    DriveListX->setCurrentIndex(DriveListX->findData(ToQt(root)));
    if (tree_->rowCount() > 0 && PathOf(tree_->item(0)) == root)
        return;
    tree_->clear();
    auto* item = FolderItem(root, root, NamedIcon("drive"));
    tree_->appendRow(item);
    FillItem(item);
    DirTreeX->expand(item->index());
}

Text SelectDir::NearestFolder(Text folder) const
{
    if (DriveListX->findData(ToQt(RootOf(folder))) < 0)
        return kFirstDrive;
    while (!folder.empty() && !files_.DirExists(folder))
        folder = ParentOf(folder);
    return folder.empty() ? kFirstDrive : folder;
}

void SelectDir::FillItem(QStandardItem* item)
{
    if (!item || item->data(kIsFilled).toBool())
        return;
    item->setData(true, kIsFilled);
    const Text path = PathOf(item);
    const QIcon picture = NamedIcon("folder");
    QList<QStandardItem*> folders;
    for (const Text& name : FoldersIn(files_, path))
        folders << FolderItem(JoinPath(path, name), name, picture);
    item->appendRows(folders);
}

QStandardItem* SelectDir::ItemBelow(QStandardItem* item, const Text& name)
{
    FillItem(item);
    for (int row = 0; row < item->rowCount(); ++row)
        if (EqualIgnoreCase(FromQt(item->child(row)->text()), name))
            return item->child(row);
    // A folder that is hidden, or was made since, is shown because it exists.
    auto* made = FolderItem(JoinPath(PathOf(item), name), name, NamedIcon("folder"));
    item->appendRow(made);
    return made;
}

void SelectDir::ShowFolder(const Text& folder)
{
    const Text root = RootOf(folder);
    if (root.empty() || DriveListX->findData(ToQt(root)) < 0)
        return;
    ShowDrive(root);
    QStandardItem* item = tree_->item(0);
    for (const QString& name : ToQt(WithoutDrive(folder)).split('\\', Qt::SkipEmptyParts))
        item = ItemBelow(item, FromQt(name));
    DirTreeX->setCurrentIndex(item->index());
    DirTreeX->scrollTo(item->index());
}

void SelectDir::FollowTree()
{
    const QStandardItem* item = tree_->itemFromIndex(DirTreeX->currentIndex());
    if (item && !isTyping_)
        sDirectory->setText(item->data(kPath).toString());
}

Text SelectDir::TypedFolder() const
{
    const Text typed = TrimBlanks(FromQt(sDirectory->text()));
    // Normalized, since rows take their sources from it and compare them as texts.
    return ResolvePath(WindowsPathOf(typed, paths_));
}

void SelectDir::FollowTyping()
{
    const Text typed = TypedFolder();
    if (RootOf(typed).empty() || !files_.DirExists(typed))
        return;
    isTyping_ = true;
    ShowFolder(typed);
    isTyping_ = false;
}

void SelectDir::MakeNewDirectory()
{
    const QStandardItem* item = tree_->itemFromIndex(DirTreeX->currentIndex());
    if (!item)
        return;
    const auto typed = ask_.XInputBox("Ny katalog", "Namn på den nya katalogen:");
    const Text name = typed ? TrimBlanks(*typed) : Text();
    if (name.empty())
        return;
    if (const Text fault = NameFaultText(name); !fault.empty()) {
        ask_.Inform("Fel", fault);
        return;
    }
    const Text folder = JoinPath(PathOf(item), name);
    if (files_.DirCreate(folder))
        ShowFolder(folder);
    else
        ask_.Inform("Kan ej skapa katalog", "Kan ej skapa katalogen " + folder + "!");
}

bool SelectDir::MayClose()
{
    const Text folder = TypedFolder();
    if (CharacterCount(folder) > kMaxPathBytes)
        return Refuse("Ogiltig katalog", "Katalogen '" + folder + "' är längre än " +
                                             NumberText(kMaxPathBytes) +
                                             " tecken! Välj en annan katalog.");
    // "C:Data" depends on the current folder.
    const bool isWhole = folder.size() > 2 && folder[2] == '\\';
    if (isWhole && !RootOf(folder).empty() && files_.DirExists(folder))
        return true;
    return Refuse("Katalogen existerar inte", folder.empty()
                                                  ? "Välj en katalog först!"
                                                  : "Katalogen '" + folder + "' existerar inte!");
}

bool SelectDir::Refuse(const Text& title, const Text& reason)
{
    ask_.Inform(title, reason);
    sDirectory->setFocus();
    sDirectory->selectAll();
    return false;
}

void SelectDir::Store()
{
    Folder = TypedFolder();
}

} // namespace quillon
