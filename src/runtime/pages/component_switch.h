// The choice of components on a command line: "a,!b".
#pragma once

#include "runtime/user_choices.h"

namespace quillon {

/// Components are given by their names or numbers, separated by commas; "!" in front excludes one.
/// If any is chosen, all that are not named are excluded; otherwise they stay as the project has
/// them. Returns the first word that is none of the project's components, if there is one.
std::optional<Text> TakeComponents(std::string_view list, const SetupInformation& setup,
                                   UserChoices& choices);

} // namespace quillon
