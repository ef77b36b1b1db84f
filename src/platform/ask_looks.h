// How something looks, as a user chooses it: a colour, a font. The answers go back into records
// field by field.
#pragma once

#include "helpers/number_text.h"

#include <optional>

namespace quillon {

struct FontChoice {
    Text name;
    Integer size = 0; // points
    bool isBold = false;
    bool isItalic = false;
    // What only some fonts of a project have; nothing: it is not asked for.
    std::optional<bool> isUnderlined;
    std::optional<bool> isStruckOut;
    std::optional<Long> colour; // 0x00BBGGRR
    // The longest name that the project file holds, in bytes there; 0: the name goes into a file
    // that holds any.
    int maxNameLength = 0;

    bool operator==(const FontChoice&) const = default;
};

} // namespace quillon
