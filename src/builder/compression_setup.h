// How Create prepares the compression: by the form's choice and the tool's options.
#pragma once

#include "builder/create_run.h"

namespace quillon {

inline constexpr Integer kDeflateLevel = 5;
inline constexpr Integer kStoredLevel = 0;

/// The level of the project's own files.
Integer CompressionLevel(const CreateForm& form);

/// Begins a new, empty list.
void InitCompression(CreateRun& run, Integer level);

} // namespace quillon
