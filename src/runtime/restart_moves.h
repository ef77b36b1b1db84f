// The moves of files that the system makes when the machine starts next.
#pragma once

#include "platform/file_system.h"
#include "runtime/journal_records.h"

namespace quillon {

/// The system makes no move of that file any more. Nothing happens where it would have made none.
void ForgetMoveAtRestart(Target& target, const Text& from);

/// The file that waits goes, and a folder of its own beside the place that it was for.
void RemoveWaitingFile(FileSystem& files, Target& target, const record::AtRestart& move);

/// Whether the system removes the file when the machine starts next.
bool IsRemovedAtRestart(const Target& target, const Text& path);

/// Where the system keeps them, and the name of the value.
RegistryKey RestartMovesKey();
inline constexpr const char* kRestartMoves = "PendingFileRenameOperations";

} // namespace quillon
