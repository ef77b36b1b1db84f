// Restarts the machine.
#pragma once

namespace quillon {

/// Enables the right to restart the machine; false where the user has none.
bool MayRestartMachine();
/// Programs are asked to end, and may refuse. False where Windows refuses, as when a shutdown is
/// already in progress.
bool RestartMachine();

} // namespace quillon
