// What the tool's windows do when a field is changed there, for fields that a script sets: of two
// pages that exclude each other the other one goes off, a name gets its capitals, and a value that
// the window does not let through ends the call.
#pragma once

#include "cli/edit_ask.h"
#include "cli/project_field.h"

namespace quillon::cli {

/// Fields that the rules have changed, with their values; those that were set are among them where
/// the project keeps them in another form.
using ChangedFields = std::vector<std::pair<Text, Text>>;

/// Applies the rules of these fields, which have been set. Throws `UsageError` where two of them
/// can't hold at once, and `CallFailure` for a value that a window refuses.
ChangedFields ApplyFieldRules(Project& project, const std::vector<Text>& fields, EditAsk& ask);

} // namespace quillon::cli
