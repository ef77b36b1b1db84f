// The pictures of commands, tabs and media: one set, drawn as SVG in the colours of the desktop's
// palette, so that they are sharp at every scale and right on light and dark.
#pragma once

#include "shell/command_ids.h"

#include <QIcon>

namespace quillon {

/// Null for a command that has no picture.
QIcon CommandIcon(CommandId id);

/// The picture of this name: that of a tab ("tab-files", "tab-design", "tab-dialogs",
/// "tab-registry", "tab-ini", "tab-components"), of a medium ("medium-floppy", "medium-cd",
/// "medium-cd-tree", "medium-internet"; drawn for 48 pixels of 96 dpi) or of the program
/// ("quillon"). All names are those of the files in icons/.
QIcon NamedIcon(const char* name);

} // namespace quillon
