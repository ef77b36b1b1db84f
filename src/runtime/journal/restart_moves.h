// The moves of files that the system makes when the machine starts next.
#pragma once

#include "platform/file_system.h"
#include "runtime/journal/journal_records.h"

#include <set>

namespace quillon {

/// Removes that file's move from the list of the system, if there is one.
void ForgetMoveAtRestart(Target& target, const Text& from);

/// Removes the files of earlier setups of this kind that wait for one of these places (in lower
/// case), with their moves, since they are out of date. Moves of other programs stay, and so do the
/// files at the places.
void ForgetMovesTo(FileSystem& files, Target& target, const std::set<Text>& places);

/// Takes the removal of a file at one of these places (in lower case) off the list of the system:
/// an uninstaller that found it in use asked for it before the product was installed again.
void ForgetRemovals(Target& target, const std::set<Text>& places);

/// Removes the file that waits, and its temporary folder beside the place that it was for.
void RemoveWaitingFile(FileSystem& files, Target& target, const record::AtRestart& move);

/// Whether the system removes the file when the machine starts next.
bool IsRemovedAtRestart(const Target& target, const Text& path);

/// Where the system keeps them, and the name of the value.
RegistryKey RestartMovesKey();
inline constexpr const char* kRestartMoves = "PendingFileRenameOperations";

} // namespace quillon
