// What uninstalling a product removes, for its user to read beforehand.
#pragma once

#include "platform/host.h"
#include "runtime/uninstall/installed_product.h"

namespace quillon {

/// By kind, and in the order in which they were made. What has gone already, what stays, and what
/// the system itself counts by is not among them.
struct Removal {
    std::vector<Text> files; // of the product, without the uninstaller's own
    std::vector<Text> own;   // of the uninstaller
    std::vector<Text> folders;
    std::vector<Text> settings; // values and keys of the registry, values of INI files

    std::vector<Text> Lines() const;
};

Removal PlanRemoval(const InstalledProduct& product, const Host& host, const Target& target,
                    const Text& journalPath);

} // namespace quillon
