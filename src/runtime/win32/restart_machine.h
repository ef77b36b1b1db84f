// Starts the machine anew.
#pragma once

namespace quillon {

/// False where Windows refuses. Programs are asked to end, and may refuse for their users.
bool RestartMachine();

} // namespace quillon
