// The folder that a run of a setup, or of a program that unpacks one, has for itself among
// temporary files: how it is called, and the lock in it, which tells the folder of a living run
// from one that was left behind.
#pragma once

#include "helpers/number_text.h"

namespace quillon {

inline constexpr const char* kRunFolderLock = "LOCK";

// What stands round the number in its name.
inline constexpr const char* kRunFolderPrefix = "QN";
inline constexpr const char* kRunFolderSuffix = ".TMP";

/// "QN123456.TMP"
inline Text RunFolderName(Long number)
{
    return kRunFolderPrefix + NumberText(number) + kRunFolderSuffix;
}

/// Whether the name, in capitals, is such a one.
inline bool IsRunFolderName(std::string_view name)
{
    constexpr std::size_t kDigits = std::string_view(kRunFolderPrefix).size();
    const std::size_t end = name.find_first_not_of("0123456789", kDigits);
    return name.starts_with(kRunFolderPrefix) && end > kDigits && end != Text::npos &&
           name.substr(end) == kRunFolderSuffix;
}

} // namespace quillon
