#include "app/MainForm.h"

#include "app/commands/actions.h"
#include "app/commands/popup_file_list.h"
#include "app/file_list/FileListView.h"
#include "app/history/EditHistory.h"
#include "app/history/edit_name.h"
#include "app/pages/ComponentsPage.h"
#include "app/pages/DesignPage.h"
#include "app/pages/DialogsPage.h"
#include "app/pages/FilesPage.h"
#include "app/pages/IniFilesPage.h"
#include "app/pages/RegistryPage.h"
#include "app/pages/in_place.h"
#include "app/window/MainTabs.h"
#include "app/window/bars_look.h"
#include "app/window/command_bars.h"
#include "app/window/dropped_project.h"
#include "app/window/tab_pictures.h"
#include "app/window/window_place.h"
#include "filelist/forms/list_commands.h"
#include "filelist/view/status_text.h"
#include "helpers/product.h"
#include "project/project_title.h"
#include "shell/failure_text.h"
#include "shell/help.h"
#include "shell/project_commands.h"
#include "shell/settings_file.h"
#include "ui/kit/fit_screen.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <algorithm>
#include <cassert>

namespace quillon {

namespace {

// What the status bar shows.
constexpr int kMinLetters = 50;

// The pages with many rows of controls; the others hold a view that can shrink.
bool Scrolls(Tab tab)
{
    return tab == Tab::Dialogs || tab == Tab::Components;
}

} // namespace

MainForm::MainForm(Session& session, HostPaths paths)
    : session_(session), edits_(std::make_unique<EditHistory>(session, *this)),
      paths_(std::move(paths))
{
    setObjectName("MainForm");
    setAcceptDrops(true);
    MakePages();
    MakeStatusBar();
    ConnectFileList();
    bars_ = std::make_unique<CommandBars>(
        *this, [this](CommandId id) { RunCommand(id); },
        [](CommandId id) { return FindAction(id) != nullptr; },
        [this](CommandId id) { ShowHelp(session_, {id}); });
    bars_->GiveListKeys(files_->List());
    bars_->ShowToolbar(SelectedTab());
    ConnectEdits();
    connect(MainTab_, &QTabWidget::currentChanged, this,
            [this] { bars_->ShowToolbar(SelectedTab()); });
    ShowSettings();
    ShowRecentFiles();
    ShowProject();
}

MainForm::~MainForm() = default;

void MainForm::MakePages()
{
    files_ = new FilesPage(session_, paths_);
    const auto put = [this](Tab tab, Page* page) { pages_[static_cast<std::size_t>(tab)] = page; };
    put(Tab::Files, files_);
    put(Tab::Design, new DesignPage(session_));
    put(Tab::Dialogs, new DialogsPage(session_));
    put(Tab::Registry, new RegistryPage(session_));
    put(Tab::IniFiles, new IniFilesPage(session_));
    put(Tab::Components,
        new ComponentsPage(session_, [this] { files_->List().ShowComponentColumns(); }));
    assert(std::ranges::find(pages_, nullptr) == pages_.end());
    std::array<QWidget*, kTabCount> pages{};
    for (std::size_t i = 0; i < pages_.size(); ++i)
        pages[i] = Scrolls(static_cast<Tab>(i)) ? Scrolled(pages_[i]) : pages_[i];
    MainTab_ = new MainTabs(pages);
    ShowTabPictures(*MainTab_, session_.host.files, session_.options.ToolFolder);
    setCentralWidget(MainTab_);
}

DesignScreen& MainForm::Design()
{
    return static_cast<DesignPage&>(PageOf(Tab::Design)).Screen();
}

void MainForm::MakeStatusBar()
{
    statusBar()->setObjectName("MainStatusBar");
    statusBar()->setMinimumWidth(kMinLetters * fontMetrics().averageCharWidth());
    statusPane_ = new QLabel;
    statusPane_->setObjectName("MainStatusBarPane1");
    statusBar()->addWidget(statusPane_, 1);
    unsavedPane_ = new QLabel;
    unsavedPane_->setObjectName("MainStatusBarUnsaved");
    statusBar()->addPermanentWidget(unsavedPane_);
    // Any event may change the project, so its state is compared each time before the window waits
    // for input.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [this] {
                edits_->NotePageEdit();
                ShowUnsavedChanges();
                ShowEdits();
            });
}

void MainForm::ShowUnsavedChanges()
{
    const QString text = session_.state.ProjectIsDirty != kOff ? "Osparade ändringar" : "";
    if (unsavedPane_->text() != text)
        unsavedPane_->setText(text);
}

void MainForm::ConnectEdits()
{
    // Laying out this tab may correct places. What was typed on the tab before must not become a
    // part of that step.
    connect(MainTab_, &QTabWidget::currentChanged, this,
            [this] { edits_->GoToTab(SelectedTab()); });
    auto& design = static_cast<DesignPage&>(PageOf(Tab::Design));
    design.onLaidOut = [this] { edits_->MergeIntoLastStep(); };
}

void MainForm::ShowEdits()
{
    for (const CommandId id : {CommandId::Undo, CommandId::Redo}) {
        const auto name = id == CommandId::Undo ? edits_->UndoName() : edits_->RedoName();
        const Text caption(FindCommand(id)->caption);
        bars_->ShowEntry(id, name ? caption + " " + ReplaceAll(*name, "&", "&&") : caption,
                         name.has_value());
    }
}

void MainForm::ConnectFileList()
{
    FileListView& list = files_->List();
    list.onDoubleClick = [this] { RunCommand(CommandId::FileInfo); };
    list.onCopy = [this] { RunCommand(CommandId::Copy); };
    list.onPaste = [this] { RunCommand(CommandId::Paste); };
    list.onPopup = [this](QPoint place) { ShowPopupFileList(*this, place); };
    list.onSelection = [this] { ShowSelection(); };
    list.onColumnClick = [this](const Text& header) {
        RunGuarded([&] { ClickColumn(session_, *this, header); }, EditName(CommandId::SortList));
    };
    files_->onDrop = [this](const std::vector<Text>& paths, const std::vector<Text>& refused) {
        RunGuarded([&] { AddDropped(session_, *this, paths, refused); },
                   EditName(CommandId::AddFiles));
    };
}

void MainForm::ShowProject()
{
    ShowTitle();
    static_cast<DesignPage&>(PageOf(Tab::Design)).BeginProject();
    for (Page* page : pages_) {
        page->ShowSession();
        ForgetUndo(*page);
    }
    edits_->Begin();
    UpdateStatusBar();
}

void MainForm::ShowRestored(const ProjectHistory::Restored& restored)
{
    for (Page* page : pages_)
        if (page != files_)
            page->ShowSession();
    files_->ShowAboveRows();
    ShowFileList(restored.rowsChanged ? restored.newRows : SelectedRows());
    if (restored.rowsChanged)
        SelectTab(Tab::Files);
}

void MainForm::ShowTitle()
{
    Text title(kProductName);
    title += " - [";
    title += ProjectTitle(session_.state.ProjectFileName);
    title += "]";
    setWindowTitle(ToQt(title));
}

void MainForm::ShowRecentFiles()
{
    bars_->ShowRecentFiles(session_.RecentFiles);
}

void MainForm::ShowSettings()
{
    const HideTabs& hide = session_.Settings.HideTabs;
    const std::pair<Tab, Integer> hidden[] = {{Tab::Registry, hide.HideTabRegistry},
                                              {Tab::IniFiles, hide.HideTabINIFiles},
                                              {Tab::Components, hide.HideTabComponents}};
    for (const auto& [tab, isHidden] : hidden) {
        MainTab_->ShowTab(tab, isHidden == 0);
        bars_->ShowTabEntry(tab, isHidden == 0);
    }
    files_->List().ShowSettings();
    ApplyBarsLook(*this, static_cast<BarsStyle>(session_.Settings.WindowOptions.CBarsCurrentStyle));
}

void MainForm::ShowTab(Tab tab)
{
    PageOf(tab).ShowSession();
}

void MainForm::SelectTab(Tab tab)
{
    if (!MainTab_->IsShown(tab))
        return;
    MainTab_->Select(tab);
    MainTab_->setFocus();
}

Tab MainForm::SelectedTab() const
{
    return MainTab_->Selected();
}

void MainForm::ShowFileList(const std::vector<std::size_t>& selectedRows)
{
    files_->List().ShowRows(selectedRows);
    UpdateStatusBar();
}

std::vector<std::size_t> MainForm::SelectedRows() const
{
    return files_->List().SelectedRows();
}

void MainForm::UpdateStatusBar()
{
    paneTellsSelection_ = false;
    statusPane_->setText(ToQt(
        StatusBarText(session_.project.Files, session_.host.machine.DecimalSign(), session_.ask)));
}

void MainForm::ShowSelection()
{
    const std::size_t count = files_->List().SelectedRowCount();
    if (count >= 2) {
        paneTellsSelection_ = true;
        statusPane_->setText(ToQt(SelectionText(count)));
    } else if (paneTellsSelection_) {
        UpdateStatusBar();
    }
}

void MainForm::RunCommand(CommandId id)
{
    if (const Action action = FindAction(id))
        Run(action, EditName(id));
}

void MainForm::Run(Action action, const Text& editName)
{
    RunGuarded([&] { action(*this); }, editName);
}

void MainForm::RunGuarded(const std::function<void()>& run, const Text& editName)
{
    edits_->Run(editName, [&] {
        // Nothing may be thrown through Qt.
        try {
            run();
        } catch (const RunError& error) {
            session_.ask.Critical("Fel", FailureText(error, session_.state.ProjectFileName));
        }
    });
}

void MainForm::ShowStatusText(const Text& text)
{
    if (text.empty())
        statusBar()->clearMessage();
    else
        statusBar()->showMessage(ToQt(text));
    // The window does not paint while the command that sets the text works.
    statusBar()->repaint();
}

void MainForm::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    // The window is shown before a long project is read or a question comes up.
    if (auto activate = std::exchange(onFirstActivation, nullptr))
        QTimer::singleShot(0, this, std::move(activate));
}

void MainForm::dragEnterEvent(QDragEnterEvent* event)
{
    if (DroppedProject(*event->mimeData(), paths_))
        event->acceptProposedAction();
}

void MainForm::dropEvent(QDropEvent* event)
{
    const auto project = DroppedProject(*event->mimeData(), paths_);
    if (!project)
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // A question may come up, and the program that the project was dragged from must not wait for
    // its answer.
    QTimer::singleShot(0, this, [this, project] {
        RunGuarded([&] { OpenChosenProject(session_, *this, *project); }, {});
    });
}

void MainForm::closeEvent(QCloseEvent* event)
{
    if (!MayCloseMainWindow(session_, *this)) {
        event->ignore();
        return;
    }
    KeepWindowPlace(*this, session_.Settings.WindowPlace);
    WriteDataToIniFile(session_);
    event->accept();
}

} // namespace quillon
