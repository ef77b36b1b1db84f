// Writes FILELIST.INF: which files the setup installs, where and how, and how it finds each in the
// package.
#pragma once

#include "platform/host.h"
#include "platform/run_error.h"
#include "project/records.h"

namespace quillon {

struct FileListOutcome {
    Long FilesInList = 0; // rows written
    std::optional<RunError> failure = {};
};

/// 0, or the number of the failure that ended it; the rows so far are in the file then.
int WriteFileListFile(const Text& path, const Project& project, const Host& host,
                      FileListOutcome& outcome);

} // namespace quillon
