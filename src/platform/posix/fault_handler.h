// What a program does when a fault of its own is about to end it: an invalid memory access, an
// exception that is not caught.
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
