// The command that adds what a component needs, by its dependency file.
#pragma once

#include "filelist/list_work.h"
#include "filelist/view/sort.h"

#include <optional>

namespace quillon {

/// Where each of the former rows is afterwards; nothing where the user cancelled. The component
/// itself is not added. `lastDepFileDir` is where the file dialog opens, and takes the folder of
/// the dependency file.
std::optional<NewPlaces> AddDepFileCommand(const ListWork& work, Text& lastDepFileDir);

} // namespace quillon
