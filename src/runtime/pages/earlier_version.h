// Where an earlier version of the product is, for a package that updates it in its place.
#pragma once

#include "runtime/setup_variables.h"

#include <optional>

namespace quillon {

/// The main folder of the installed version; nothing where the project does not handle updates or
/// none is found. The folder counts only if the project's reference file is in it.
std::optional<Text> EarlierVersionFolder(const SetupInformation& setup, const Host& host,
                                         const Target& target,
                                         InstallScope scope = InstallScope::Project);

} // namespace quillon
