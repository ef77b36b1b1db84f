// The files that a design uses, as the overview lists them.
#pragma once

#include "design/rtf_box_file.h"
#include "project/records.h"

#include <vector>

namespace quillon {

struct OverviewRow {
    Text label;
    Text file;
    Text size; // bytes, in groups of three

    bool operator==(const OverviewRow&) const = default;
};

/// Kept: a file that can't be measured ends the list silently.
std::vector<OverviewRow> DesOverview(const Project& project, const FileSystem& files,
                                     const RTFboxFolders& texts);

} // namespace quillon
