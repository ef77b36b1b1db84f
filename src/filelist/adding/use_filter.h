// The importers' way into the file list: system files that no setup may carry, or not from the
// system folder of the machine at hand, are sorted out before they become rows.
#pragma once

#include "filelist/adding/add_file.h"

#include <optional>
#include <string_view>

namespace quillon {

/// A part of the browser, which only the browser's own setup may bring.
bool IsNeverAdded(std::string_view fileName);

/// Adds the file as `FileAdding` does, unless it is one to be left out, which happens silently. On
/// Windows XP the guarded system files come from the folder of files for redistribution, and are
/// left out where the machine has none.
std::optional<std::size_t> AddFileToFileListView_UseFilter(FileAdding& adding,
                                                           const Machine& machine, FileToAdd file);

} // namespace quillon
