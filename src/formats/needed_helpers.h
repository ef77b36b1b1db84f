// Which helper programs a package carries: Create copies those, and a setup misses no others.
#pragma once

#include "formats/copy_letters.h"
#include "formats/runtime_programs.h"
#include "project/records.h"

#include <algorithm>
#include <ranges>

namespace quillon {

/// Scripts run in the helper that registers files. `copyOptions` are those of each row.
template <std::ranges::forward_range Options>
bool NeedsRegistryHelper(const Project& project, const Options& copyOptions)
{
    return std::ranges::any_of(
               copyOptions,
               [](const auto& letters) { return HasOption(letters, CopyLetter::kRegister); }) ||
           !project.Lists.RunScriptBefore.empty() || !project.Lists.RunScriptAfter.empty();
}

/// A file that is in use can't be registered before the next start of Windows, which is the second
/// helper's work.
template <std::ranges::forward_range Options>
bool NeedsSecondRegistryHelper(const Options& copyOptions)
{
    return std::ranges::any_of(copyOptions, [](const auto& letters) {
        return HasOption(letters, CopyLetter::kRegister) &&
               HasOption(letters, CopyLetter::kActiveFile);
    });
}

inline bool NeedsUninstaller(const Project& project)
{
    return project.InstallOptions.UninstallSupport != kOff;
}

} // namespace quillon
