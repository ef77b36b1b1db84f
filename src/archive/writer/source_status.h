// What the sources of an archive are before it is begun.
#pragma once

#include "archive/writer/zip_writer.h"

#include <vector>

namespace quillon {

/// One for each source, in their order. Throws `CompressionFailure` for one that can't be read or
/// is a folder. `processEvents` may be empty.
std::vector<FileStatus> StatusOfSources(const FileSystem& files, std::span<const ZipSource> sources,
                                        const std::function<void()>& processEvents);

} // namespace quillon
