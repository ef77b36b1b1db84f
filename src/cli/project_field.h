// Any field of the project, by the names that its file has for section and key.
#pragma once

#include "cli/call_context.h"
#include "project/records.h"

namespace quillon::cli {

/// "Version.ProductName", "DesPictures.PictureFilename2" and "FileComponent3.CompName" (which is
/// also "FileComponents.CompName3") are keys; a list's name alone, such as "Registry", is its text.
/// Case is ignored. The value is given as a user types it: a number, a flag as 1 or 0, a text with
/// its line breaks. Throws `UsageError` for a field that isn't there and for a value that it can't
/// hold.
void SetField(Project& project, const Text& field, const Text& value);

} // namespace quillon::cli
