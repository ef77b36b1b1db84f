// The registry list of a project, line by line: keys and values to add, to delete at installation
// and to remove at uninstallation. Variables stand in the lines as they were written.
#pragma once

#include "runtime/target.h"

#include <vector>

namespace quillon {

struct RegistryLine {
    enum class Kind { Key, TextValue, NumberValue, BytesValue, Delete, Uninstall, Unreadable };

    Kind kind = Kind::Unreadable;
    RegistryKey key;
    // Delete and Uninstall without a value's name concern the whole key with all below it.
    bool hasValue = false;
    Text valueName; // empty is the key's default value
    Text text;      // of a TextValue
    std::uint32_t number = 0;
    std::string bytes;
    Text reason; // why an Unreadable line is none
};

RegistryLine ReadRegistryLine(std::string_view line);

struct RegistryListLine {
    Text line; // as it stands in the list
    RegistryLine read;
};

/// Empty lines are left out, all others come back in order.
std::vector<RegistryListLine> ReadRegistryLines(std::string_view list);

} // namespace quillon
