// The side picture that all pages of a setup share until a page is given one of its own.
#pragma once

#include "platform/ask.h"
#include "platform/file_system.h"
#include "project/records.h"

namespace quillon {

/// Asks for a bitmap file; `folder` is where the dialog opens, and afterwards where the user went.
/// Nothing where the user cancelled, or chose a file whose name a project can't hold.
std::optional<Text> ChooseDlgBitmap(Text& folder, Ask& ask);

/// The picture that comes with the tool; nothing, and a box, where it is not there.
std::optional<Text> StandardDlgBitmap(const FileSystem& files, const Text& toolFolder, Ask& ask);

/// Makes it the picture of all pages, over those that pages were given on their own.
void UseDlgBitmap(Project& project, const Text& path);

} // namespace quillon
