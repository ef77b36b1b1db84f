// The choice of a component for files: by the entries of the list that offers it, or by its number.
#pragma once

#include "project/records.h"

#include <string_view>
#include <vector>

namespace quillon {

/// The entries of `lbCompList`: "Ingen komponent", then each component in use under its own number.
std::vector<Text> ComponentListEntries(const Project& project);

/// `%COMPDIR1` to `%COMPDIR9`, or `%DESTDIR` for an entry that names no component.
Text GetCompDirFromListEntry(std::string_view entry);

/// "1" to "9", or an empty text.
Text GetCompNrFromListEntry(std::string_view entry);

/// The component of a typed number: "1" to "9" for a component in use, else an empty text.
Text UsableComponentNumber(const Text& typed, const Project& project, char decimalSign);

} // namespace quillon
