// The command for dependency files as the window runs it: on the session, shown in the window.
#pragma once

#include "shell/main_window.h"
#include "shell/session.h"

namespace quillon {

void AddDepFileInWindow(Session& session, MainWindow& window);

} // namespace quillon
