// What a program does when it is about to be ended by a fault of its own: a write to nowhere, an
// exception that nobody catches.
#pragma once

#include <functional>
#include <string>

namespace quillon {

/// From now on such a fault writes a note to the file, a host path: `heading`, the signal and the
/// stack. Then `rescue` runs, in a process of its own that has the memory of this one, so that it
/// may fail or hang: it has five seconds. At last the program ends as it would have.
void InstallFaultHandler(const std::string& noteFile, const std::string& heading,
                         std::function<void()> rescue);

} // namespace quillon
