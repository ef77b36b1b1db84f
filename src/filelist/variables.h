// The variables as the tool shows them. It stores texts with their variables unexpanded; values are
// a preview.
#pragma once

#include "platform/host.h"
#include "project/records.h"

#include <vector>

namespace quillon {

struct VariableValue {
    Text Variable;
    Text Value;
};

/// The rows of the preview list. Kept: an empty program group takes the project's name here, in the
/// project itself and not only in the list.
std::vector<VariableValue> ListVariableValues(Project& project, const Host& host);

/// The same rows for a look at a project that stays as it is.
std::vector<VariableValue> ReadVariableValues(const Project& project, const Host& host);

} // namespace quillon
