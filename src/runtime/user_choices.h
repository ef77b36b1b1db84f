// What the user has chosen, on the pages or by switches. What was not chosen is as the project has
// it.
#pragma once

#include "formats/setup_information.h"

#include <array>
#include <optional>

namespace quillon {

struct UserChoices {
    struct Component {
        std::optional<bool> isTicked;
        std::optional<Text> folder;
    };

    Text destination; // the main folder; empty where none was chosen
    std::optional<Text> programGroup;
    std::optional<section::LicenseData> user;
    std::array<Component, kComponentCount> components; // component n is at n - 1
};

/// A choice made now replaces an earlier one.
void AddChoices(const UserChoices& chosen, UserChoices& choices);

/// Puts the choices into the project as if they had been its own. The main folder is not among
/// them: it is beside the project wherever it is asked for.
void ApplyChoices(const UserChoices& choices, SetupInformation& setup);

} // namespace quillon
