// Signals that would end a program silently.
#pragma once

namespace quillon {

/// From now on a file that grows beyond what is allowed (`ulimit -f`) fails to be written, as on a
/// full disk, instead of ending the program; and what ends it from outside is reported on the error
/// output first.
void InstallSignalHandlers();

} // namespace quillon
