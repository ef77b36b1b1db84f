// The note of a fault that ended the program: it is written at that moment and read by the wizard
// for the report, as the beginning of the description.
#pragma once

#include "platform/file_system.h"

namespace quillon {

Text FaultNoteFile(const Text& ownFolder);

/// With line breaks as the description has them; empty where there is none.
Text ReadFaultNote(const FileSystem& files, const Text& ownFolder);

/// Once the note is in a report.
void RemoveFaultNote(FileSystem& files, const Text& ownFolder);

} // namespace quillon
