// Where the product's entry in the system's list of installed programs is, which the setup writes
// and the uninstaller, another setup and the system read.
#pragma once

#include "runtime/install_scope.h"
#include "runtime/journal/journal_records.h"
#include "runtime/target.h"

#include <vector>

namespace quillon {

// The values that others read: where the product is, its version, and the command that removes it.
inline constexpr const char* kInstallLocation = "InstallLocation";
inline constexpr const char* kDisplayVersion = "DisplayVersion";
inline constexpr const char* kUninstallString = "UninstallString";

/// What that command starts, and with which journal; empty parts of one that is not ours.
struct UninstallCommand {
    Text program;
    Text journal;
};

/// "program" "journal", as the setup writes it there.
UninstallCommand ReadUninstallCommand(const Text& command);

/// Where the entry of the product of that name is.
RegistryKey UninstallEntryKey(const Text& product, InstallScope scope = InstallScope::Project);

/// Where the installation with these records has put it.
RegistryKey RecordedUninstallEntry(const Text& product, const std::vector<JournalRecord>& records);

} // namespace quillon
