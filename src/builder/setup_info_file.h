// Writes QNSETUP.INF: all of the project but its file list, as the setup runtime reads it.
#pragma once

#include "builder/create_options.h"
#include "platform/ask.h"
#include "platform/host.h"
#include "platform/run_error.h"
#include "project/records.h"

namespace quillon {

/// In test and preview mode pictures keep their folders, because the runtime then takes them from
/// where they lie.
enum class SetupInfoMode { Create, TestRun, Preview };

struct SetupInfoInput {
    Project& project;
    const Host& host;
    Ask& ask;
    const CreateOptions& options;
    DesignSurface surface;
    Long FilesInList = 0; // rows that FILELIST.INF holds
    std::optional<RunError> failure = {};
};

/// 0, or the number of the failure that ended it; the file stays as far as it came. An empty
/// `ProgramGroup` takes the project's name, in the project as well.
int WriteSetupInfoFile(const Text& path, SetupInfoInput& in, SetupInfoMode mode);

} // namespace quillon
