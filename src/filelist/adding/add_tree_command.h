// The command that adds a folder with all folders below it.
#pragma once

#include "filelist/adding/tree_walk.h"
#include "filelist/list_work.h"

#include <optional>

namespace quillon {

/// Asks for the folder and the component of its files; nothing when cancelled. The folder dialog
/// opens where the last tree was taken from.
std::optional<TreeToAdd> ChooseTree(const ListWork& work);

/// The captions of the two ways in which a tree can be mapped to destinations.
Text TreeFormCaption(TreeForm form, const Text& baseDestination);

} // namespace quillon
