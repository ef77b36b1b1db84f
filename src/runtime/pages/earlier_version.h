// Where an earlier version of the product is, for a package that updates it in its place.
#pragma once

#include "runtime/setup_variables.h"

#include <optional>

namespace quillon {

struct EarlierVersion {
    Text folder; // its main one
    InstallScope scope = InstallScope::Project;

    bool operator==(const EarlierVersion&) const = default;
};

/// Nothing where the project does not handle updates or no version is found. A folder counts only
/// if the project's reference file is in it. Where no switch has said for whom the product is, a
/// version that is installed for the current user alone is found too, after one for the whole
/// machine.
std::optional<EarlierVersion> FindEarlierVersion(const SetupInformation& setup, const Host& host,
                                                 const Target& target,
                                                 InstallScope scope = InstallScope::Project);

} // namespace quillon
