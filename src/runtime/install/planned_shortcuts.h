// The shortcuts of rows with an icon marker. Every such row has one in the program group, and the
// marker's last letter can name one more place: the desktop, the start menu, the program menu.
#pragma once

#include "runtime/install/install_plan.h"

namespace quillon {

/// Adds the shortcuts of the planned files, and the uninstaller's own.
void PlanShortcuts(const PlanInput& input, InstallPlan& plan);

/// The uninstaller as it is in a product's main folder.
Text UninstallerPath(const Text& mainFolder);

} // namespace quillon
