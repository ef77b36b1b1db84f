// The INI list of a project: file headers, sections and values, each belonging to the nearest
// header and section above it.
#pragma once

#include "runtime/texts/messages.h"

#include <vector>

namespace quillon {

struct IniLine {
    Text file; // as the header names it, without its dashes
    Text section;
    Text name; // empty on a line that makes only its section
    Text value;
};

struct IniList {
    std::vector<IniLine> lines;
    struct Unreadable {
        Text line;
        Message reason;
    };
    std::vector<Unreadable> unreadable;
};

/// Takes the list as the project holds it.
IniList ReadIniLines(std::string_view list);

} // namespace quillon
