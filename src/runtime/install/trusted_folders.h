// Whose the folders are that a setup writes into. Who has made a folder decides who may write to
// it, and so what the product's programs are.
#pragma once

#include "runtime/install/install_plan.h"
#include "runtime/install/setup_checks.h"

namespace quillon {

/// Ends the setup where another user has made the folder, or one above it. Users of other machines,
/// whose folders lie on shares and on disks that are carried about, are not compared.
void CheckFolder(const SetupCheck& check, const Text& folder);

/// Every folder outside the main one that the plan writes a file, a shortcut or an INI file into,
/// or that it makes, each once.
std::vector<Text> FoldersOfParts(const InstallPlan& plan);

/// The same check for each of these, up to the first folder of the system's own, which
/// administrators alone may write to.
void CheckFoldersOfParts(const SetupCheck& check, const InstallPlan& plan);

} // namespace quillon
