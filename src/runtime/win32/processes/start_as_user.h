// Starts programs and opens documents for the user, without the setup's own rights.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// Throws 53 where the file is not there, 5 where it can't be started.
void StartAsUser(const Text& file, const Text& arguments);

} // namespace quillon
