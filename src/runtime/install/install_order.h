// The order in which the planned files are unpacked.
#pragma once

#include "runtime/install/install_plan.h"
#include "runtime/package/package_reader.h"

namespace quillon {

/// The places of `files` in that order. It is the rows' own, but for a solid container, which is
/// unpacked from its beginning to its end. Rows that go to the same place keep their order, since
/// the later one decides.
std::vector<std::size_t> InstallOrder(const std::vector<PlannedFile>& files,
                                      const PackageReader& package);

} // namespace quillon
