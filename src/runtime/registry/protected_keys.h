// The registry keys that belong to the system and to all programs. No setup and no uninstaller
// removes one of them with all that is below it, whatever a list or a journal says: a variable that
// turns out empty can make such a key of a harmless one.
#pragma once

#include "runtime/target.h"

namespace quillon {

/// True for the root keys too. Keys of a product below a protected one, such as a program's own
/// entry under `App Paths`, are not protected.
bool IsProtectedKey(const RegistryKey& key);

} // namespace quillon
