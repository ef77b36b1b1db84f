// The open project as one JSON object: a member for each section, under the names of the file.
#pragma once

#include "cli/call_context.h"
#include "project/records.h"

namespace quillon::cli {

/// Values are those of the model: texts, and numbers with 0 and -1 for flags. A row is an array of
/// its fifteen texts.
Json ProjectJson(const Project& project);

/// The same without the rows; nothing is changed.
Json SettingsJson(Project& project);

/// A value as a line of output shows it: a text without its quotation marks.
Text ValueText(const Json& value);

} // namespace quillon::cli
