// Makes FILEDATA.DAT, the container with the files that the setup installs.
#pragma once

#include "builder/create_run.h"

namespace quillon {

/// A failed compression marks the run as failed and lets it go on. With spanning, the count of
/// disks goes into QNSETUP.INF whether or not the compression failed; a failure of that is thrown.
void CreateFileContainer(CreateRun& run, bool spanning);

/// What the container is encrypted with; empty where it isn't.
Text ContainerPassword(const Project& project);

/// The lines that report a failed compression; `missingReadRight` is said where that was the
/// reason.
void ReportCompressionError(Ask& ask, const Text& what, Integer result,
                            const Text& missingReadRight);

} // namespace quillon
