// Which paths a script may use.
#pragma once

#include "runtime/setup_variables.h"
#include "runtime/texts/messages.h"

#include <optional>

namespace quillon {

/// Why a script may not use the path; nothing where it may. `path` has its variables expanded.
std::optional<Reason> FaultOfScriptPath(const Text& path, const SetupVariables& variables,
                                        const Target& target);

} // namespace quillon
