// The variables of the process's environment.
#pragma once

#include <cstdlib>
#include <string>

namespace quillon {

/// Empty where the variable is missing.
inline std::string EnvironmentVariable(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

} // namespace quillon
