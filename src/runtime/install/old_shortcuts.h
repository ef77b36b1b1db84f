// Shortcuts that an earlier version of the product has left in its program group.
#pragma once

#include "runtime/install/install_plan.h"
#include "runtime/journal/install_journal.h"

namespace quillon {

/// True where its program is in that folder, or the document that a viewer opens.
bool LeadsInto(const Text& folder, const Shortcut& shortcut);

bool IsShortcut(const Text& path);

/// The shortcuts that the journal names, and of all others those that lead into the main folder:
/// the group of a new project may hold the shortcuts of other makers' products.
std::vector<Text> OldShortcuts(const FileSystem& files, const Target& target,
                               const InstallJournal& journal, const InstallPlan& plan);

} // namespace quillon
