// Changes single values of a profile file in place, as the Windows private-profile functions do:
// all other lines stay as they are, to the byte.
#pragma once

#include "platform/file_system.h"

#include <string>

namespace quillon {

/// The first key of that name takes the value, in the form "Key=value" without blanks. A missing
/// key is added at the end of its section, a missing section at the end of the file, and a missing
/// file is made. Throws `RunError` when the file can't be read or written.
void WriteProfileValue(FileSystem& files, const Text& path, const Text& section, const Text& key,
                       const Text& value);

/// The same in the bytes of such a file, for a writer of many values.
void SetProfileValue(std::string& bytes, const Text& section, const Text& key, const Text& value);

} // namespace quillon
