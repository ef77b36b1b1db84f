// What a project is called in captions.
#pragma once

#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

/// The name of a project's file without its folder. Windows takes a slash for a backslash.
inline Text ProjectTitle(Text path)
{
    std::ranges::replace(path, '/', '\\');
    return ExtractFilename(path);
}

} // namespace quillon
