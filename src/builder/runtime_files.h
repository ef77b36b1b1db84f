// Copies the ready-made programs of the setup runtime into the package, as far as the project needs
// them.
#pragma once

#include "builder/create_run.h"

namespace quillon {

[[nodiscard]] Step CopySetupExe(CreateRun& run);
[[nodiscard]] Step CopyRuntimeExe(CreateRun& run);
[[nodiscard]] Step CopyUnzipLibrary(CreateRun& run);
[[nodiscard]] Step CopyRegistryHelper(CreateRun& run);
[[nodiscard]] Step CopySecondRegistryHelper(CreateRun& run);
[[nodiscard]] Step CopyUninstaller(CreateRun& run);
[[nodiscard]] Step CopyLicenseRtf(CreateRun& run);

} // namespace quillon
