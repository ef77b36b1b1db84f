// Files and folders that are dropped on the list.
#pragma once

#include "filelist/list_work.h"
#include "filelist/view/sort.h"

#include <optional>
#include <vector>

namespace quillon {

/// Adds what was dropped by the rules of the commands, with one question for all of it: a file
/// alone as a single file, several as a multiple selection, a folder as a tree. A folder alone
/// means the destination itself; among others it keeps its name below the destination, as they
/// do. Where each of the former rows is afterwards; nothing where the list is as it was.
std::optional<NewPlaces> AddDroppedPaths(const ListWork& work, const std::vector<Text>& paths);

/// Tells of dropped things that no Windows path leads to, by the name of the first.
void RefuseDropped(Ask& ask, const std::vector<Text>& names);

} // namespace quillon
