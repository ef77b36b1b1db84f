// What uninstalling a product removes, for its user to read beforehand.
#pragma once

#include "platform/host.h"
#include "runtime/installed_product.h"

namespace quillon {

/// Files, folders, values of the registry and of INI files, by kind and in the order in which they
/// were made. What has gone already, what stays, and what keeps the system's own books is not among
/// them.
std::vector<Text> LinesOfRemoval(const InstalledProduct& product, const Host& host,
                                 const Target& target, const Text& logPath);

} // namespace quillon
