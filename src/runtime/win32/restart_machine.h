// Starts the machine anew.
#pragma once

namespace quillon {

/// False where Windows refuses. Programs are asked to end, and may refuse for their users.
/// Takes the right to start the machine anew; false where the user has none.
bool MayRestartMachine();
/// False where it goes on running, which is so where it is on its way down already.
bool RestartMachine();

} // namespace quillon
