#include "app/window/command_bars.h"

#include "project/project_title.h"
#include "ui/look/icons.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <vector>

namespace quillon {

namespace {

/// F1 in an open menu: the help of the entry under the bar.
class MenuHelpKey : public QObject {
public:
    MenuHelpKey(QMenu& menu, const CommandBars::Run& showHelp)
        : QObject(&menu), menu_(menu), showHelp_(showHelp)
    {
        menu.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress ||
            static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1 || !menu_.activeAction() ||
            !menu_.activeAction()->data().isValid())
            return QObject::eventFilter(watched, event);
        const auto id = static_cast<CommandId>(menu_.activeAction()->data().toInt());
        while (QWidget* open = QApplication::activePopupWidget())
            open->close();
        showHelp_(id);
        return true;
    }

private:
    QMenu& menu_;
    const CommandBars::Run& showHelp_;
};

} // namespace

CommandBars::CommandBars(QMainWindow& window, Run run, CanRun canRun, Run showHelp)
    : window_(window), run_(std::move(run)), canRun_(std::move(canRun)),
      showHelp_(std::move(showHelp))
{
    MakeMenus();
    for (const Command& command : ToolbarOnlyCommands())
        MakeAction(command);
    toolbar_ = window_.addToolBar("Standard");
    toolbar_->setObjectName("Standard");
    toolbar_->setMovable(false);
    toolbar_->setContextMenuPolicy(Qt::PreventContextMenu);
}

void CommandBars::MakeMenus()
{
    std::vector<QMenu*> open;
    for (const MenuRow& row : MenuBarRows()) {
        const QString caption = ToQt(row.command.caption);
        switch (row.part) {
        case MenuPart::Menu:
            open = {ConnectHelp(window_.menuBar()->addMenu(caption))};
            break;
        case MenuPart::Submenu:
            open.push_back(ConnectHelp(open.back()->addMenu(caption)));
            break;
        case MenuPart::SubmenuEnd:
            open.pop_back();
            break;
        case MenuPart::Line:
            open.back()->addSeparator();
            break;
        case MenuPart::Entry:
            open.back()->addAction(MakeAction(row.command));
            break;
        }
    }
}

QMenu* CommandBars::ConnectHelp(QMenu* menu)
{
    new MenuHelpKey(*menu, showHelp_);
    return menu;
}

QAction* CommandBars::MakeAction(const Command& command)
{
    const CommandId id = command.id;
    // A button without a menu entry is read aloud by its tool tip, which also shows it where the
    // bar is too narrow.
    const std::string_view caption = command.caption.empty() ? command.tooltip : command.caption;
    auto* action = new QAction(ToQt(caption), &window_);
    action->setObjectName(QString("cmd%1").arg(static_cast<int>(id)));
    action->setData(static_cast<int>(id));
    action->setToolTip(ToQt(command.tooltip));
    action->setIcon(CommandIcon(id));
    action->setIconVisibleInMenu(true);
    action->setMenuRole(QAction::NoRole);
    action->setShortcut(QKeySequence(ToQt(command.keys), QKeySequence::PortableText));
    // Keys of one widget are those of all widgets that have the action, and of no others.
    if (command.keysWork != KeysWork::Everywhere)
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setEnabled(canRun_(id));
    QObject::connect(action, &QAction::triggered, &window_, [this, id] { run_(id); });
    actions_[id] = action;
    return action;
}

void CommandBars::ShowToolbar(Tab tab)
{
    toolbar_->clear();
    for (const CommandId id : ToolbarIds(tab))
        if (id == CommandId::None)
            toolbar_->addSeparator();
        else
            toolbar_->addAction(ActionOf(id));
}

void CommandBars::ShowRecentFiles(const std::array<Text, kRecentFileCount>& files)
{
    // The mark of a free slot is shown alone, so that the list of a new machine is not empty.
    const bool isEmpty = std::ranges::all_of(files, [](const Text& file) { return file.empty(); });
    for (int slot = 0; slot < kRecentFileCount; ++slot) {
        const Text& file = files[static_cast<std::size_t>(slot)];
        QAction* action = ActionOf(kRecentFiles[static_cast<std::size_t>(slot)]);
        action->setVisible(!file.empty() || (isEmpty && slot == 0));
        const Text name = file.empty() ? Text(kFreeSlot) : ProjectTitle(file);
        action->setText(ToQt(name).replace('&', "&&"));
        action->setStatusTip(ToQt(file));
    }
}

void CommandBars::ShowTabEntry(Tab tab, bool visible)
{
    ActionOf(CommandOf(tab))->setVisible(visible);
}

void CommandBars::ShowEntry(CommandId id, const Text& caption, bool canRun)
{
    QAction* action = ActionOf(id);
    action->setText(ToQt(caption));
    action->setEnabled(canRun);
}

void CommandBars::GiveListKeys(QWidget& list)
{
    for (const MenuRow& row : MenuBarRows())
        if (row.command.keysWork == KeysWork::InFileList)
            list.addAction(ActionOf(row.command.id));
}

QAction* CommandBars::ActionOf(CommandId id) const
{
    const auto found = actions_.find(id);
    return found == actions_.end() ? nullptr : found->second;
}

} // namespace quillon
