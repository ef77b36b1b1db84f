// The test run and the preview of the design screen: what the setup will show, tried before a
// package is made. Both write into a folder of the tool and start the setup there in its test mode.
#pragma once

#include "builder/create_options.h"
#include "platform/ask.h"
#include "platform/host.h"
#include "platform/run_error.h"
#include "project/records.h"

namespace quillon {

struct TestRun {
    // Nothing of it changes: what the writers set in a project, they set in a copy.
    const Project& project;
    Host& host;
    Ask& ask;
    const CreateOptions& options;
    DesignSurface surface = {};

    Long FilesInList = 0;
    // What the machine could not do; the boxes show its number alone.
    std::optional<RunError> failure = {};
};

/// Where the setup is that a test run starts, and where its files go.
Text TestFolder(const CreateOptions& options);

/// The check of the project, then both INF files, the language file and the agreement of the RTF
/// page in `folder`, which is made where it is missing. False where that failed; a box has shown
/// why.
[[nodiscard]] bool WriteTestFiles(TestRun& run, const Text& folder);

/// Writes the files and starts the setup, which goes on by itself.
bool StartSimulation(TestRun& run);

/// The same for the background alone; the project is not checked and FILELIST.INF stays as it is.
bool StartDesignPreview(TestRun& run);

} // namespace quillon
