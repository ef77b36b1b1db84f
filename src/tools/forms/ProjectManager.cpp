#include "tools/forms/ProjectManager.h"

#include "helpers/swedish_order.h"
#include "platform/failure_text.h"
#include "shell/project_commands.h"
#include "shell/settings_file.h"
#include "tools/forms/PMMoreInfo.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kProjectColumnCount = static_cast<int>(std::size(kProjectColumns));
constexpr int kPathColumn = kProjectColumnCount - 1;
constexpr int kMinListLetters = 60;
constexpr int kMinRows = 10;

/// Sorts by the kind of its column: numbers by their value, texts as a Swedish dictionary does.
class ProjectRow : public QTreeWidgetItem {
public:
    ProjectRow(const ListedProject& project, char decimalSign) : decimalSign_(decimalSign)
    {
        for (int i = 0; i < kProjectColumnCount; ++i) {
            const ProjectColumn& column = kProjectColumns[i];
            setText(i, ToQt(project.*column.text));
            if (column.order == ProjectColumn::Order::Numeric)
                setTextAlignment(i, Qt::AlignRight | Qt::AlignVCenter);
        }
    }

    bool operator<(const QTreeWidgetItem& other) const override
    {
        const int column = treeWidget()->sortColumn();
        const Text left = FromQt(text(column));
        const Text right = FromQt(other.text(column));
        if (kProjectColumns[column].order == ProjectColumn::Order::Numeric)
            return FloatingNumber(left, decimalSign_).value_or(0) <
                   FloatingNumber(right, decimalSign_).value_or(0);
        return SwedishOrderKey(left) < SwedishOrderKey(right);
    }

private:
    char decimalSign_;
};

Text PathOf(const QTreeWidgetItem& row)
{
    return FromQt(row.text(kPathColumn));
}

} // namespace

ProjectManager::ProjectManager(Session& session, QWidget* parent)
    : Form("ProjectManager", "Projekthanterare", parent), session_(session),
      read_(ReadProjectList(session.host, SettingsFile(session.host.machine)))
{
    MakeList();
    Button(NAMED(cmdOpenProject), "&Öppna", [this] { OpenSelected(); });
    Button(NAMED(cmdAddProject), "&Addera öppet projekt", [this] { AddOpenProject(); });
    Button(NAMED(cmdDeleteProject), "&Ta bort", [this] { DeleteSelected(); });
    Button(NAMED(cmdMoreInfo), "&Mer information...", [this] { ShowMoreInfo(); });
    Arrange(VBox({
        Growing(Above("&Projekt:", MinWidth(kMinListLetters, ListViewProjects))),
        HBox({cmdOpenProject, cmdAddProject, cmdDeleteProject, cmdMoreInfo, Stretch()}),
        OkCancel(),
    }));
    MakeKeys();
    for (const ListedProject& project : read_.projects)
        ShowRow(project);
    for (int i = 0; i < kPathColumn; ++i)
        ListViewProjects->resizeColumnToContents(i);
    ListViewProjects->setCurrentItem(ListViewProjects->topLevelItem(0));
    EnableButtons();
    ListViewProjects->setFocus();
}

void ProjectManager::MakeList()
{
    Named(NAMED(ListViewProjects), new QTreeWidget);
    ListViewProjects->setColumnCount(kProjectColumnCount);
    for (int i = 0; i < kProjectColumnCount; ++i)
        ListViewProjects->headerItem()->setText(i, QString::fromUtf8(kProjectColumns[i].header));
    ListViewProjects->setColumnHidden(kPathColumn, true);
    ListViewProjects->setRootIsDecorated(false);
    ListViewProjects->setUniformRowHeights(true);
    ListViewProjects->setAllColumnsShowFocus(true);
    // As wide as its columns where the screen has room for them.
    ListViewProjects->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    ListViewProjects->setMinimumHeight(kMinRows * ListViewProjects->fontMetrics().height());
    // As stored, until the user asks for another order.
    ListViewProjects->header()->setSortIndicator(-1, Qt::AscendingOrder);
    ListViewProjects->header()->setSortIndicatorClearable(true);
    ListViewProjects->setSortingEnabled(true);
    connect(ListViewProjects, &QTreeWidget::itemDoubleClicked, this, [this] { OpenSelected(); });
    connect(ListViewProjects, &QTreeWidget::itemSelectionChanged, this,
            [this] { EnableButtons(); });
}

void ProjectManager::MakeKeys()
{
    const auto key = [this](const QKeySequence& keys, QWidget* where, auto press) {
        auto* shortcut = new QShortcut(keys, where);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, press);
        return shortcut;
    };
    key(Qt::Key_Return, ListViewProjects, [this] { OpenSelected(); });
    key(Qt::Key_Enter, ListViewProjects, [this] { OpenSelected(); });
    key(Qt::Key_Delete, ListViewProjects, [this] { DeleteSelected(); });
    key(QKeySequence("Ctrl+N"), this, [this] { AddOpenProject(); })->setContext(Qt::WindowShortcut);
}

void ProjectManager::ShowRow(const ListedProject& project)
{
    projects_.push_back(project);
    ListViewProjects->addTopLevelItem(new ProjectRow(project, session_.host.machine.DecimalSign()));
}

void ProjectManager::EnableButtons()
{
    for (QPushButton* button : {cmdOpenProject, cmdDeleteProject, cmdMoreInfo})
        if (button)
            button->setEnabled(SelectedRow() != nullptr);
}

QTreeWidgetItem* ProjectManager::SelectedRow() const
{
    const auto selected = ListViewProjects->selectedItems();
    return selected.isEmpty() ? nullptr : selected.front();
}

void ProjectManager::OpenSelected()
{
    const QTreeWidgetItem* row = SelectedRow();
    if (!row)
        return;
    SelectedProject = PathOf(*row);
    cmdOK->click();
}

void ProjectManager::AddOpenProject()
{
    const auto added =
        ListOpenProject(session_.project, session_.state, projects_, session_.host, session_.ask);
    if (!added)
        return;
    ShowRow(*added);
    const auto rows = ListViewProjects->findItems(ToQt(added->path), Qt::MatchExactly, kPathColumn);
    ListViewProjects->setCurrentItem(rows.front());
}

void ProjectManager::DeleteSelected()
{
    QTreeWidgetItem* row = SelectedRow();
    if (!row ||
        !session_.ask.YesNo("Projekthanterare",
                            "Vill du avlägsna den markerade projektfilen från projektlistan?",
                            Ask::Stops::OnNo))
        return;
    std::erase_if(projects_, [path = PathOf(*row)](const ListedProject& project) {
        return project.path == path;
    });
    delete row;
}

void ProjectManager::ShowMoreInfo()
{
    const QTreeWidgetItem* row = SelectedRow();
    if (!row)
        return;
    const Text path = PathOf(*row);
    PMMoreInfo(path, ReadProjectVersionData(session_.host.files, path), this).ShowModal();
}

bool ProjectManager::MayClose()
{
    const Text file = SettingsFile(session_.host.machine);
    try {
        SaveProjectList(session_.host.files, file, read_, projects_);
        return true;
    } catch (const RunError& error) {
        session_.ask.Critical("Fel", FailureText(error, file));
        // A project that was chosen is opened all the same.
        return !SelectedProject.empty();
    }
}

void OpenProjectManager(Session& session, MainWindow& window, QWidget* parent)
{
    ProjectManager manager(session, parent);
    manager.ShowModal();
    if (!manager.SelectedProject.empty())
        OpenChosenProject(session, window, manager.SelectedProject);
}

} // namespace quillon
