// What a package can ask for and this version of the setup does not do yet. Nothing of it is passed
// over in silence: each part is named in the log.
#pragma once

#include "runtime/install_plan.h"

namespace quillon {

std::vector<SkippedPart> UnsupportedFeatures(const SetupInformation& setup,
                                             const std::vector<InstallRow>& rows,
                                             const LanguageTexts& texts);

} // namespace quillon
