// What each command does, by its id. A command without a row here is shown disabled.
#pragma once

namespace quillon {

class MainForm;

using Action = void (*)(MainForm&);

/// Null where the id has no action.
Action FindAction(int id);

} // namespace quillon
