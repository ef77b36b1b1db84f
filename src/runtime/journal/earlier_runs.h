// The remains of an installation of the product that was interrupted from outside, in whatever
// folder.
#pragma once

#include "runtime/log/action_log.h"
#include "runtime/setup_variables.h"

namespace quillon {

struct EarlierRunsInput {
    Host& host;
    Target& target;
    ActionLog& log;
    const LanguageTexts& texts;
    const SetupInformation& setup; // as the package brings it
    const SetupVariables& variables;
    const Text& packageFolder;
    InstallScope scope;
};

/// Undoes it, or clears it away: in this installation's main folder, in the package's own, in those
/// that the list of programs names for the product, and in the one that the setup noted when it
/// began. Ends the setup where something could not be undone.
void FinishEarlierRuns(const EarlierRunsInput& input);

} // namespace quillon
