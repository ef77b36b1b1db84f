// The system's own choice of a folder.
#pragma once

#include "helpers/text.h"

#include <optional>
#include <windows.h>

namespace quillon {

/// Opens at `folder`, if that is there. Nothing where the user cancels.
std::optional<Text> ChooseFolder(HWND owner, const Text& text, const Text& folder);

} // namespace quillon
