// The folder that a run of a setup, or of a program that unpacks one, has for itself among
// temporary files: how it is called, and the lock in it, which tells the folder of a living run
// from one that was left behind.
#pragma once

#include "helpers/number_text.h"

namespace quillon {

inline constexpr const char* kRunFolderLock = "LOCK";

/// "QN123456.TMP"
inline Text RunFolderName(Long number)
{
    return "QN" + NumberText(number) + ".TMP";
}

/// Whether the name, in capitals, is such a one.
inline bool IsRunFolderName(std::string_view name)
{
    const std::size_t end = name.find_first_not_of("0123456789", 2);
    return name.starts_with("QN") && end > 2 && end != Text::npos && name.substr(end) == ".TMP";
}

} // namespace quillon
