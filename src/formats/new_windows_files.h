// The files of Windows that later versions of Windows bring themselves. A package for these
// versions alone leaves them out, and a setup with that option leaves them as they are there.
#pragma once

#include <string_view>

namespace quillon {

/// Without regard to case.
bool IsPartOfNewWindows(std::string_view fileName);

} // namespace quillon
