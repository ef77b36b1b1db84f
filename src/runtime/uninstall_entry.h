// The product's entry in the system's list of installed programs: a key with one value for each
// thing that the list shows or that administrators look up. One table says what stands there.
#pragma once

#include "runtime/install.h"

#include <span>

namespace quillon {

/// Where the entry of the product of that name is.
RegistryKey UninstallEntryKey(const Text& product);

struct EntryFacts {
    const InstallInput& input;
    std::uint64_t installedBytes; // of the product's files
};

struct EntryValue {
    const char* name;
    /// An empty text: the product has none, and the key has no such value.
    RegistryData (*data)(const EntryFacts& facts);
};

std::span<const EntryValue> UninstallEntryValues();

/// The entry of an earlier version is written over; what that had and this one lacks goes.
void WriteUninstallEntry(const EntryFacts& facts, InstallTransaction& changes);

} // namespace quillon
