// The nine optional parts of an installation.
#pragma once

#include "project/records.h"

namespace quillon {

bool IsAnyComponentInUse(const Project& project);

} // namespace quillon
