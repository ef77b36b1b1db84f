// Where the files of a package go when somebody unpacks it without installing it.
#pragma once

#include "formats/install_row.h"

#include <optional>

namespace quillon {

/// The folder for what the screens show.
inline constexpr const char* kExtractedScreenFolder = "DESOBJ";

/// A row's file below the folder that is unpacked to; its folder where the row makes one. A
/// variable is a plain folder, "%DESTDIR\Sub" is "DESTDIR\Sub", and a drive too, "C:\Data" is
/// "C\Data". Nothing for a row that no setup would install.
std::optional<Text> ExtractedName(const InstallRow& row);

/// The same of an entry of DESOBJ.DAT.
std::optional<Text> ExtractedScreenName(const Text& entry);

} // namespace quillon
