// Which paths a script may use.
#pragma once

#include "runtime/messages.h"
#include "runtime/setup_variables.h"

#include <optional>

namespace quillon {

/// Why a script may not use the path; nothing where it may. `path` has its variables expanded.
std::optional<Reason> FaultOfScriptPath(const Text& path, const SetupVariables& variables,
                                        const Target& target);

} // namespace quillon
