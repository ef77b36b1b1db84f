// The command that adds files from a file dialog.
#pragma once

#include "filelist/list_work.h"
#include "filelist/view/sort.h"

#include <optional>

namespace quillon {

/// Where each of the former rows is afterwards; nothing where the list is as it was.
/// `lastAddFilesDirectory` is where the file dialog opens, and takes the folder of the files.
std::optional<NewPlaces> AddFilesCommand(const ListWork& work, Text& lastAddFilesDirectory,
                                         FileQuestion::Look look = FileQuestion::Look::Details);

} // namespace quillon
