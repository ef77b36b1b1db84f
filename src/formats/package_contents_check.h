// The part of the reading test that is about the package's own files.
#pragma once

#include "formats/package.h"

namespace quillon {

/// Reports each file that is missing, and each that is not what the manifest says. A package
/// without a manifest is reported to lack it.
void CheckContents(const FileSystem& files, const Package& package, std::vector<Text>& faults);

} // namespace quillon
