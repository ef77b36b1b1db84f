// The files of a design, as its editors ask for them.
#pragma once

#include "platform/ask.h"

namespace quillon {

enum class DesignFile { BackgroundPicture, FreePicture, ChangingPicture, Sound };

/// Nothing where the user cancelled, or chose a file whose path no project file holds, which a box
/// says. `folder` is where the dialog opens and afterwards where the user went.
std::optional<Text> ChooseDesignFile(DesignFile kind, Text& folder, Ask& ask);

} // namespace quillon
