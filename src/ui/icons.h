// The pictures of commands and tabs: one set, drawn as SVG in the colours of the desktop's palette,
// so that they are sharp at every scale and right on light and dark.
#pragma once

#include <QIcon>

namespace quillon {

/// Null for a command that has no picture.
QIcon CommandIcon(int id);

} // namespace quillon
