// Every command of the main window by its id: what the menus and toolbars call it and where it
// appears in them. What a command does is another table, beside the window.
#pragma once

#include "shell/command_ids.h"
#include "shell/main_window.h"

#include <array>
#include <span>
#include <string_view>

namespace quillon {

// Where the keys of a command work. Its menu shows them in any case.
enum class KeysWork {
    Everywhere,
    InFileList, // while the list has the keyboard
    InEditors   // the field that has the keyboard handles them
};

struct Command {
    CommandId id = CommandId::None;
    std::string_view caption;      // "&" precedes the access letter
    std::string_view tooltip = {}; // of the commands that have a button
    std::string_view icon = {};    // the name of its picture
    std::string_view keys = {};    // "Ctrl+S"
    KeysWork keysWork = KeysWork::Everywhere;
};

// In the order of the list of recent projects.
inline constexpr std::array kRecentFiles = {CommandId::RecentFile1, CommandId::RecentFile2,
                                            CommandId::RecentFile3, CommandId::RecentFile4};
inline constexpr int kRecentFileCount = static_cast<int>(kRecentFiles.size());
inline constexpr std::string_view kFreeSlot = "(tom)";

enum class MenuPart {
    Menu,       // a menu of the menu bar begins
    Entry,      // a command
    Submenu,    // a submenu begins
    SubmenuEnd, // the submenu ends
    Line        // between groups of entries
};

struct MenuRow {
    MenuPart part;
    Command command = {}; // `None` where a title has no id
};

/// The command that opens the tab.
CommandId CommandOf(Tab tab);

/// The menu bar, row by row.
std::span<const MenuRow> MenuBarRows();

/// The commands that have a button on this tab; `None` separates groups.
std::span<const CommandId> ToolbarIds(Tab tab);

/// The commands that are in toolbars only.
std::span<const Command> ToolbarOnlyCommands();

/// What the table says of an id; null for one that is not in it.
const Command* FindCommand(CommandId id);

} // namespace quillon
