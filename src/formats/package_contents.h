// Which files a package has to hold, derived from its two INF files.
#pragma once

#include "formats/install_row.h"
#include "formats/setup_information.h"

#include <vector>

namespace quillon {

/// All that is in the package's folder but the bytes of the rows: the starter, the setup, what it
/// is found by, and those of its helper programs that this installation takes.
std::vector<Text> FixedFilesOf(const SetupInformation& setup, const std::vector<InstallRow>& rows);

/// The pieces of the container, below the package's folder, in the order of the disks; none where a
/// package has no container.
std::vector<Text> ContainerPieces(const SetupInformation& setup,
                                  const std::vector<InstallRow>& rows);

/// True of the files that only help a user to start the setup. A package in which one was renamed,
/// or the other left out, can be installed all the same.
bool OnlyStartsTheSetup(const SetupInformation& setup, const Text& name);

} // namespace quillon
