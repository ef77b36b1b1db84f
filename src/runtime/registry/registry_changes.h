// Carries out a line of the registry list, or of a script, within an installation.
#pragma once

#include "runtime/journal/install_transaction.h"
#include "runtime/registry/registry_lines.h"

namespace quillon {

struct RegistryWork {
    InstallTransaction& transaction;
    InstallJournal& journal;
    ActionLog& log;
};

/// Nothing happens for an unreadable line.
void ApplyRegistryLine(const RegistryWork& work, const RegistryLine& line);

} // namespace quillon
