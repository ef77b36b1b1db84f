// The Create command: checks the open project and turns it into a finished setup package in one
// folder, telling each step in the status list.
#pragma once

#include "builder/create_run.h"

namespace quillon {

enum class CreateResult {
    Done,
    Stopped, // by a check or an answer
    Failed   // what is left in the destination is no whole package
};

[[nodiscard]] CreateResult RunCreate(CreateRun& run);

} // namespace quillon
