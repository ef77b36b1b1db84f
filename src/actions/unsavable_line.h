// Lists of free text are in the project file between marks. A line that looks like one of these
// marks would be taken for it when the project is opened again: it would end its own list, or be
// read as the beginning of a list or section further down.
#pragma once

#include "project/records.h"

#include <optional>
#include <string_view>

namespace quillon {

struct UnsavableLine {
    Text line;
    const char* hit; // what would be lost, as the tool calls it; null: the rest of the list itself
};

using ListField = Text section::Lists::*;

/// The first line of the text that would not come back from this list; nothing where all do.
std::optional<UnsavableLine> FindUnsavableLine(ListField list, std::string_view text);

/// The warning about such a line while it can still be changed.
Text UnsavableLineWarning(const UnsavableLine& line);

/// Why a project with these lists may not be saved; nothing where it may.
std::optional<Text> WhyListsCannotBeSaved(const section::Lists& lists);

} // namespace quillon
