// The pictures of the six tabs: the bitmaps of the tool's folder, or the program's own where one is
// missing.
#pragma once

#include "platform/file_system.h"

class QTabWidget;

namespace quillon {

/// Sets the pictures tab1.bmp to tab6.bmp of the folder \Res.
void ShowTabPictures(QTabWidget& tabs, const FileSystem& files, const Text& toolFolder);

} // namespace quillon
