// The widths that the user has given to columns of the file list, as the settings keep them:
// "0:120 1:300", each column with its width in pixels of 96 dpi.
#pragma once

#include "project/file_list.h"

#include <map>
#include <string_view>

namespace quillon {

using ColumnWidths = std::map<Column, int>;

/// What is no column with a width is passed over.
ColumnWidths ReadColumnWidths(std::string_view text);
Text ColumnWidthsText(const ColumnWidths& widths);

} // namespace quillon
