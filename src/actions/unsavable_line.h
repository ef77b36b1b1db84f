// Lists of free text stand in the project file between marks. A line that looks like one of these
// marks would be taken for it when the project is opened again.
#pragma once

#include "helpers/text.h"

#include <optional>
#include <string_view>

namespace quillon {

/// The first line of a list that stands in the project file as it is and would not come back from
/// it whole; nothing where all do.
std::optional<Text> FindUnsavableLine(std::string_view list);

/// What the user is told of such a line while there is time.
Text UnsavableLineWarning(const Text& line);

} // namespace quillon
