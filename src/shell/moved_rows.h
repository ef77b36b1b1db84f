// The selection of the file list after a command that put its rows into another order.
#pragma once

#include "filelist/view/sort.h"
#include "shell/main_window.h"

namespace quillon {

/// Shows the rows again, those selected that were before.
void ShowMovedRows(MainWindow& window, const NewPlaces& places);

} // namespace quillon
