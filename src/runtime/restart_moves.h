// The moves of files that the system makes when the machine starts next.
#pragma once

#include "runtime/target.h"

namespace quillon {

/// The system makes no move of that file any more. Nothing happens where it would have made none.
void ForgetMoveAtRestart(Target& target, const Text& from);

/// Where the system keeps them, and the name of the value.
RegistryKey RestartMovesKey();
inline constexpr const char* kRestartMoves = "PendingFileRenameOperations";

} // namespace quillon
