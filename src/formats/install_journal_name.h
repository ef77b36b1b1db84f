// The records of the products that are installed in a folder: QNXUNIN.LOG, QNXUNIN2.LOG and so on.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// Of the n-th product; the first one is 1.
Text InstallJournalName(int number);

bool IsInstallJournalName(std::string_view name);

} // namespace quillon
