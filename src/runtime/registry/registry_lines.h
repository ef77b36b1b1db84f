// The registry list of a project, line by line: keys and values to add, to delete at installation
// and to remove at uninstallation. Variables are in the lines as they were written.
#pragma once

#include "runtime/target.h"
#include "runtime/texts/messages.h"

#include <optional>
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
    std::optional<Message> reason; // why an Unreadable line is none
};

RegistryLine ReadRegistryLine(std::string_view line);

/// A sub key as the registry takes it: no backslash twice, none at either end. A key has no limit
/// of its own, and one that was cut would be another key.
Text PlainSubKey(std::string_view subKey);

/// True for a key that the system itself lives in, and for a root.
bool IsSystemKey(const RegistryKey& key);

/// True where a line would remove a whole key of the system with all that is below it. A variable
/// that turns out empty can make such a key of a harmless one.
bool RemovesSystemKey(const RegistryLine& line);

struct RegistryListLine {
    Text line; // as it is in the list
    RegistryLine read;
};

/// Empty lines are left out, all others come back in order.
std::vector<RegistryListLine> ReadRegistryLines(std::string_view list);

} // namespace quillon
