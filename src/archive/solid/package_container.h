// Opens a package's archive, a ZIP file or a solid container, whichever its first bytes are.
#pragma once

#include "archive/container.h"
#include "archive/solid/frame_decoding.h"

namespace quillon {

/// Throws `ZipError`, or `RunError` when the file can't be read. A solid container is refused as
/// unsupported where `frames` has no functions.
std::unique_ptr<Container> OpenAnyContainer(std::unique_ptr<InputFile> file,
                                            const Inflation& inflation,
                                            const FrameDecoding& frames);

/// By the libraries that are linked.
std::unique_ptr<Container> OpenAnyContainer(std::unique_ptr<InputFile> file);

} // namespace quillon
