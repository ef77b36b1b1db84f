// The system's own installation of data access, which an import of a Visual Basic project adds to a
// package. It arrives as any other file, under a name that keeps it from being taken for a program,
// and is run once the product is installed.
#pragma once

#include "platform/ask.h"
#include "runtime/install/install_plan.h"
#include "runtime/log/action_log.h"

namespace quillon {

/// The file of the plan that is run; null where the package has none.
const PlannedFile* FindDataAccess(const InstallPlan& plan);

struct DataAccessInput {
    Host& host;
    Target& target;
    Ask& ask;
    ActionLog& log;
    const LanguageTexts& texts;
    const SetupInformation& setup;
    const InstallPlan& plan;
    Text workFolder;
    bool silent = false;
};

/// True where it needs a restart of the machine. Never throws: the product is installed, and what
/// happens here is logged.
bool InstallDataAccess(const DataAccessInput& input);

} // namespace quillon
