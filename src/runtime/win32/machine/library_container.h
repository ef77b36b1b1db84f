// Archives unpacked through DUNZIP32.DLL.
#pragma once

#include "runtime/package/container.h"

namespace quillon {

/// The library is loaded when the first archive is opened. Throws 53 from there where it is
/// missing.
OpenContainer LibraryContainers(Text libraryPath);

} // namespace quillon
