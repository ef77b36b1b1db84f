// What an installation would do, as JSON: /PLAN writes it, and nothing else is done.
#pragma once

#include "runtime/install/install_plan.h"

namespace quillon {

struct PlanReportInput {
    const SetupInformation& setup;
    const LanguageTexts& texts;
    const FileSystem& files;
    const Target& target;
    const SetupVariables& variables;
    const InstallPlan& plan;
    bool silent = false; // what needs a user is skipped then
};

Text PlanReport(const PlanReportInput& input);

/// What of the plan is not the current user's own: a file in the Windows folder or one that the
/// whole machine shares, a key outside the user's own. Empty where there is nothing.
Text PartForAllUsers(const InstallPlan& plan, const Machine& machine);

} // namespace quillon
