// The command that adds what a component needs, by its dependency file.
#pragma once

#include "filelist/list_work.h"
#include "filelist/view/sort.h"

#include <optional>

namespace quillon {

struct DepFileRows {
    // Where each of the former rows is afterwards.
    NewPlaces places;
    // The places of the rows that the command has made or filled, ascending.
    std::vector<std::size_t> added;
};

/// Nothing where the user cancelled. The component itself is not added. A missing file leaves a row
/// without its source and ends the walk, and a box says so; once the file is there, the command
/// fills that row and adds the rest. `lastDepFileDir` is where the file dialog
/// opens, and takes the folder of the dependency file.
std::optional<DepFileRows> AddDepFileCommand(const ListWork& work, Text& lastDepFileDir);

} // namespace quillon
