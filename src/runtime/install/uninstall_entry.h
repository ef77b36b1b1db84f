// The product's entry in the system's list of installed programs: a key with one value for each
// thing that the list shows or that administrators look up. One table says what stands there.
#pragma once

#include "runtime/install/install.h"

namespace quillon {

/// What the user knows as the product's version: that of its program, before the project's own.
const Text& VersionOf(const SetupInformation& setup);

struct EntryContext {
    const InstallInput& input;
    std::uint64_t installedBytes; // of the product's files
};

/// The entry of an earlier version is written over; what that had and this one lacks goes.
void WriteUninstallEntry(const EntryContext& entry, InstallTransaction& transaction);

} // namespace quillon
