// The moves of files that the system makes when the machine starts next.
#pragma once

#include "platform/file_system.h"
#include "runtime/journal/journal_records.h"

#include <set>

namespace quillon {

/// The system makes no move of that file any more. Nothing happens where it would have made none.
void ForgetMoveAtRestart(Target& target, const Text& from);

/// What an earlier setup of this kind has left to wait for one of these places (in lower case) is
/// out of date: it goes, and so does its move. What waits for them by others' doing stays. Nor is
/// what lies there removed.
void ForgetMovesTo(FileSystem& files, Target& target, const std::set<Text>& places);

/// The system removes no file at one of these places (in lower case) any more: an uninstaller that
/// found it in use has asked for that before the product was installed again.
void ForgetRemovals(Target& target, const std::set<Text>& places);

/// The file that waits goes, and a folder of its own beside the place that it was for.
void RemoveWaitingFile(FileSystem& files, Target& target, const record::AtRestart& move);

/// Whether the system removes the file when the machine starts next.
bool IsRemovedAtRestart(const Target& target, const Text& path);

/// Where the system keeps them, and the name of the value.
RegistryKey RestartMovesKey();
inline constexpr const char* kRestartMoves = "PendingFileRenameOperations";

} // namespace quillon
