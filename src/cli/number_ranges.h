// Which numbers a field can mean, where that is fewer than fit into it: the places of a list, the
// radio buttons of a group, a check box.
#pragma once

#include <cstdint>
#include <string_view>

namespace quillon::cli {

struct NumberRange {
    std::int64_t first;
    std::int64_t last;
};

/// By the names of the project file, without the number of a component; `ofType` for a field that
/// takes whatever fits. Case is ignored.
NumberRange RangeOf(std::string_view section, std::string_view key, NumberRange ofType);

} // namespace quillon::cli
