// The choice of components on a command line: "a,!b".
#pragma once

#include "runtime/user_choices.h"

namespace quillon {

/// Components are given by their names or numbers, with commas between them; "!" in front leaves
/// one out. As soon as one is wanted, all that are not named are left out; otherwise they stay as
/// the project has them. The word that names none of the project's components comes back, if there
/// is one.
std::optional<Text> TakeComponents(std::string_view list, const SetupInformation& setup,
                                   UserChoices& choices);

} // namespace quillon
