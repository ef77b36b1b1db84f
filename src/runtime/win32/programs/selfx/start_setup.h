// The programs that the self-extractor starts, and waits for.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// Whether this program has an administrator's rights, where the system has such a difference.
bool IsElevated();

/// Starts it, waits for its end and says its code. `arguments` stand as they are. Throws `RunError`
/// where it can't be started; where the user refuses the rights, that is a `RunError` too:
/// `kRightsRefused`.
unsigned RunSetupAndWait(const Text& program, const Text& arguments);
/// The same with the rights of an administrator, for which the system asks the user.
unsigned RunElevatedAndWait(const Text& program, const Text& arguments);

inline constexpr int kRightsRefused = -1;

} // namespace quillon
