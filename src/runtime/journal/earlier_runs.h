// What an installation of the product has left that was ended from outside, wherever it was to go.
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

/// Takes it back, or clears it away: for this installation's main folder, for the package's own,
/// for those where the list of programs says that the product is, and for the one that the setup
/// has noted when it began. Ends the setup where
/// something could not be taken back.
void FinishEarlierRuns(const EarlierRunsInput& input);

} // namespace quillon
