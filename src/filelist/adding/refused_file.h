// What keeps a file on disk from becoming a row: a project, the end user's Windows or the package
// could not hold it, and would silently lose it or another file.
#pragma once

#include "platform/file_system.h"

#include <optional>

namespace quillon {

/// The box that reports it.
struct Refusal {
    Text title;
    Text text;
};

/// Nothing where no file can be found or asked about.
std::optional<FileStatus> StatusIfExists(const FileSystem& files, const Text& path);

/// A project holds no such text, or Windows no such name.
std::optional<Refusal> RefusalOfTexts(const Text& fileName, const Text& sourcePath,
                                      const Text& destination);

/// The path in lower case, by which a row finds its file, leads to `found`, and that is not the
/// file that is `meant`.
std::optional<Refusal> RefusalOfLowerCase(const Text& sourcePath,
                                          const std::optional<FileStatus>& meant,
                                          const std::optional<FileStatus>& found);

/// Not even the first byte can be read, or what is there is neither file nor folder. A folder
/// and what is missing pass; they have failures of their own.
std::optional<Refusal> RefusalToRead(const FileSystem& files, const Text& path);

} // namespace quillon
