// The files of INSTALL.ZIP as the sources of a payload: in the order that packs best, programs
// through the branch filter, also those in a container that is stored.
#pragma once

#include "archive/solid/writer/solid_writer.h"

namespace quillon {

/// Throws `RunError` or `ZipError` where the archive can't be read: 57 for an entry in it that is
/// not stored.
std::vector<SolidSource> PayloadSources(const FileSystem& files, const Text& archive);

/// Files of one kind beside each other, those of one name as well.
bool PacksBefore(const Text& left, const Text& right);

} // namespace quillon
