// Every command of the main window by its id: what the menus and toolbars call it and where it
// appears in them. What a command does is another table, beside the window.
#pragma once

#include "shell/main_window.h"

#include <array>
#include <span>
#include <string_view>

namespace quillon {

// Where the keys of a command work. Its menu shows them in any case.
enum class KeysWork {
    Everywhere,
    InFileList, // while the list has the keyboard
    InEditors   // texts and fields take them by themselves
};

struct Command {
    int id;
    std::string_view caption;      // "&" stands before the access letter
    std::string_view tooltip = {}; // of the commands that have a button
    std::string_view keys = {};    // "Ctrl+S"
    KeysWork keysWork = KeysWork::Everywhere;
};

inline constexpr int kFirstCommand = 101;
inline constexpr int kLastCommand = 302;
inline constexpr int kFirstRecentFile = 291;
inline constexpr int kRecentFileCount = 4;
// The name of the step that they would take back, or do again, stands behind their captions.
inline constexpr int kUndoCommand = 215;
inline constexpr int kRedoCommand = 216;
inline constexpr std::string_view kFreeSlot = "(tom)";

enum class MenuPart {
    Menu,       // a menu of the menu bar begins
    Entry,      // a command
    Submenu,    // a submenu begins
    SubmenuEnd, // and ends
    Line        // between groups of entries
};

struct MenuRow {
    MenuPart part;
    Command command = {}; // id 0 where a title has none
};

/// The menu bar, row by row.
std::span<const MenuRow> MenuBarRows();

/// The commands that have a button on this tab; 0 separates groups.
std::span<const int> ToolbarIds(Tab tab);

/// The commands that stand in toolbars only.
std::span<const Command> ToolbarOnlyCommands();

/// What the table says of an id; null for one that is not in it.
const Command* FindCommand(int id);

} // namespace quillon
