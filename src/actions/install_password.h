// The password that a setup asks for.
#pragma once

#include "helpers/text.h"

#include <optional>

namespace quillon {

/// What the project file gives back for the password, where that is another one: it loses the
/// blanks at its ends and the quotation marks round it. Any password may be used all the same.
std::optional<Text> PasswordAfterReopening(const Text& typed);

} // namespace quillon
