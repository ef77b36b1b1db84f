// The summary of a finished package: how large it is and how long it took.
#pragma once

#include "builder/create_run.h"

namespace quillon {

/// "12,5 MB på 1 min 4 s". A package on the disks of a drive has no size: those that went
/// before are no longer in it.
Text PackageSummary(const CreateRun& run, std::int64_t milliseconds);

} // namespace quillon
