// What each command does, by its id. A command without a row here is shown disabled.
#pragma once

#include "shell/command_ids.h"

namespace quillon {

class MainForm;

using Action = void (*)(MainForm&);

/// Null where the id has no action.
Action FindAction(CommandId id);

} // namespace quillon
