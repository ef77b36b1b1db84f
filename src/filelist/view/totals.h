// The sizes of the rows, summed up in whole kilobytes.
#pragma once

#include "helpers/number_text.h"
#include "platform/ask.h"
#include "project/file_list.h"

namespace quillon {

/// The sum of the sizes over all rows. A size that is no number in this locale ends in a box, and
/// the sum is 0.
Long GetTotalSizeOfFiles(const FileList& list, char decimalSign, Ask& ask);

/// The same without the files that a package for this target system leaves out.
Long GetTotalSizeOfFilesX(const FileList& list, int targetOperatingSystem, char decimalSign,
                          Ask& ask);

} // namespace quillon
