// A project in which every field that reaches the setup has a value of its own.
#pragma once

#include "project/records.h"

namespace quillon::test {

/// The project that is in tests/golden/builder/full_project; its file list is empty.
Project FullProject();

/// A row of the file list with these columns.
FileListRow Row(const Text& name, const Text& destination, const Text& source,
                const Text& options = "D");

} // namespace quillon::test
