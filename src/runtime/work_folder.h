// The folder that a run of a setup, or of a program that unpacks one, has for itself among
// temporary files: its name, and the lock in it, which tells the folder of a running setup from one
// that was left behind.
#pragma once

#include "helpers/number_text.h"

namespace quillon {

inline constexpr const char* kWorkFolderLock = "LOCK";

// The parts of its name before and after the number.
inline constexpr const char* kWorkFolderPrefix = "QN";
inline constexpr const char* kWorkFolderSuffix = ".TMP";

/// "QN123456.TMP"
inline Text WorkFolderName(Long number)
{
    return kWorkFolderPrefix + NumberText(number) + kWorkFolderSuffix;
}

/// Whether the name, in capitals, has this form.
inline bool IsWorkFolderName(std::string_view name)
{
    constexpr std::size_t kDigits = std::string_view(kWorkFolderPrefix).size();
    const std::size_t end = name.find_first_not_of("0123456789", kDigits);
    return name.starts_with(kWorkFolderPrefix) && end > kDigits && end != Text::npos &&
           name.substr(end) == kWorkFolderSuffix;
}

} // namespace quillon
