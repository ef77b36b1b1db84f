#include "app/command_bars.h"

#include "project/project_title.h"
#include "ui/icons.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <vector>

namespace quillon {

CommandBars::CommandBars(QMainWindow& window, Run run, CanRun canRun)
    : window_(window), run_(std::move(run)), canRun_(std::move(canRun))
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
            open = {window_.menuBar()->addMenu(caption)};
            break;
        case MenuPart::Submenu:
            open.push_back(open.back()->addMenu(caption));
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

QAction* CommandBars::MakeAction(const Command& command)
{
    const CommandId id = command.id;
    // What has no place in a menu is read aloud, and shown where the bar is too narrow, by its tip.
    const std::string_view caption = command.caption.empty() ? command.tooltip : command.caption;
    auto* action = new QAction(ToQt(caption), &window_);
    action->setObjectName(QString("cmd%1").arg(static_cast<int>(id)));
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
    for (int slot = 0; slot < kRecentFileCount; ++slot) {
        const Text& file = files[static_cast<std::size_t>(slot)];
        QAction* action = ActionOf(kRecentFiles[static_cast<std::size_t>(slot)]);
        // The mark of a free slot stands alone, so that the list of a new machine is not empty.
        action->setVisible(!file.empty() || slot == 0);
        const Text name = file.empty() ? Text(kFreeSlot) : ProjectTitle(file);
        action->setText(ToQt(name).replace('&', "&&"));
        action->setStatusTip(ToQt(file));
    }
}

void CommandBars::ShowTabEntry(Tab tab, bool visible)
{
    constexpr std::array kTabs = {CommandId::FilesTab,    CommandId::DesignTab,
                                  CommandId::DialogsTab,  CommandId::RegistryTab,
                                  CommandId::IniFilesTab, CommandId::ComponentsTab};
    ActionOf(kTabs[static_cast<std::size_t>(tab)])->setVisible(visible);
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
