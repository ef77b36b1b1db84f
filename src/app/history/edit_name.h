// What a step is called after "Ångra" and "Gör om".
#pragma once

#include "helpers/text.h"
#include "shell/command_ids.h"
#include "shell/main_window.h"

#include <string_view>

namespace quillon {

/// A step by this command: its caption without access letter and dots. Empty for a command that
/// makes no step, such as one that saves.
Text EditName(CommandId id);
/// A step by an entry of a menu.
Text EditName(std::string_view caption);
/// A change made on the tab itself.
Text EditName(Tab tab);

} // namespace quillon
