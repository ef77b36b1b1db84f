// The copy options as boxes to tick, a box for each letter that the user can choose. What is ticked
// replaces the letters of all rows that are selected.
#pragma once

#include "filelist/options/row_options.h"
#include "project/file_list.h"

#include <array>
#include <span>

namespace quillon {

// The last letter of kCopyOptions is not chosen here: fonts get it by a dialog of their own.
inline constexpr std::size_t kCopyOptionBoxes = kCopyOptions.size() - 1;

/// What is ticked, in the order of kCopyOptions.
using CopyOptionTicks = std::array<bool, kCopyOptionBoxes>;

/// False where there is nothing to copy: rows without a file, or no row at all.
bool CanHaveCopyOptions(const FileList& files, std::span<const std::size_t> selectedRows);

/// The letters of a row that is selected alone. Several rows start blank, since they may differ.
CopyOptionTicks StartingTicks(const FileList& files, std::span<const std::size_t> selectedRows);

/// The letters in the order in which they are written. "No copy of the same version" counts only
/// together with the comparison of versions.
Text CopyOptionLetters(const CopyOptionTicks& ticks);

/// Gives the letters to all these rows, also to those without a file.
void SetCopyOptions(FileList& files, std::span<const std::size_t> selectedRows,
                    const Text& letters);

} // namespace quillon
