// Shortcuts that an earlier version of the product has left in its program group.
#pragma once

#include "runtime/install/install_plan.h"
#include "runtime/journal/install_journal.h"

namespace quillon {

/// By its program or by the document that a viewer opens.
bool LeadsInto(const Text& folder, const Shortcut& shortcut);

bool IsShortcut(const Text& path);

/// Those that the journal names, and those that lead into the main folder all the same. In the
/// group of a new project, products of many makers lie side by side.
std::vector<Text> OldShortcuts(const FileSystem& files, const Target& target,
                               const InstallJournal& journal, const InstallPlan& plan);

} // namespace quillon
