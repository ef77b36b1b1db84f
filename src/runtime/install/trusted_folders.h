// The owners of the folders that a setup writes into. The owner of a folder decides who may write
// to it, and so could replace the product's programs.
#pragma once

#include "runtime/install/install_plan.h"
#include "runtime/install/setup_checks.h"

namespace quillon {

/// Ends the setup where another user owns the folder, or one above it. Owners on shares and on
/// removable disks are not compared, since they may be users of other machines.
void CheckFolder(const SetupCheck& check, const Text& folder);

/// Every folder outside the main one that the plan writes a file, a shortcut or an INI file into,
/// or that it makes, each once.
std::vector<Text> FoldersOfParts(const InstallPlan& plan);

/// The same check for each of these, up to the first folder of the system's own, which
/// administrators alone may write to.
void CheckFoldersOfParts(const SetupCheck& check, const InstallPlan& plan);

} // namespace quillon
