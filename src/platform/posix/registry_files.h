// A registry read from `.reg` files, for a machine that has none of its own: exports of the two
// kinds that Windows writes.
#pragma once

#include "platform/machine.h"

#include <map>
#include <optional>
#include <string_view>
#include <tuple>

namespace quillon {

class RegistryFiles {
public:
    /// Adds what a file says to what the ones before it said. False where the bytes are no
    /// registry export. Values other than texts and dwords are passed over; a dword is kept as
    /// its decimal text.
    bool Add(std::string_view bytes);

    /// Key and value names ignore case. The classes root shows both places where classes live.
    std::optional<Text> Read(RegistryRoot root, const Text& subKey, const Text& valueName) const;

private:
    using ValueKey = std::tuple<RegistryRoot, Text, Text>; // sub key and value name in lower case

    void RemoveKey(RegistryRoot root, const Text& subKey);
    void TakeValue(RegistryRoot root, const Text& subKey, std::string_view line);

    std::map<ValueKey, Text> values_;
};

} // namespace quillon
