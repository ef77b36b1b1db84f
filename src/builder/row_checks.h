// What would make a package that installs nothing, the wrong file, or a file less than the list
// has. Asked before anything is written; the rows are named as the list shows them, counted from 1.
#pragma once

#include "builder/create_run.h"

namespace quillon {

/// Rows that no setup could install: a name or destination that Windows cannot hold, and what is
/// left of a file that could not be added.
[[nodiscard]] Check CheckRows(CreateRun& run);
/// The setup leaves such a word as it is.
[[nodiscard]] Check CheckUnknownVariables(CreateRun& run);
/// Files that are kept one by one, of which the later one would write over the earlier.
[[nodiscard]] Check CheckOneByOneNames(CreateRun& run);
/// The setup puts its journal and the uninstaller into the main folder.
[[nodiscard]] Check CheckUninstallerNames(CreateRun& run);
/// Shortcuts of one title are one file in the program group.
[[nodiscard]] Check CheckIconTitles(CreateRun& run);
/// The setup finds the screen's objects by their names alone.
[[nodiscard]] Check CheckDesignNames(CreateRun& run);
/// A tree holds the files under the names of their sources, and the setup looks for the rows'.
[[nodiscard]] Check CheckNamesInTree(CreateRun& run);

} // namespace quillon
