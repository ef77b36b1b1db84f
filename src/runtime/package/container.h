// How the setup opens a package's archive. It reads the archive itself; the library that comes with
// the package inflates, and zlib does in the tests.
#pragma once

#include "archive/container.h"

#include <functional>
#include <memory>

namespace quillon {

/// Throws `ZipError`, or `RunError` when the file can't be read.
using OpenContainer = std::function<std::unique_ptr<Container>(std::unique_ptr<InputFile> archive)>;

} // namespace quillon
