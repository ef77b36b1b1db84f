// A program that is ended by SIGKILL at a moment that a test can name: before its n-th change of a
// file. The system calls are counted, so the result does not depend on time.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace quillon::test {

struct KilledProgram {
    bool canTrace = true; // false where this machine lets no program be watched
    bool wasKilled = false;
    int changes = 0; // calls of the main thread that can change a file, up to the end
    int exitCode = -1;
};

/// Ends the program before its `change`-th change, counted from 1; one with fewer ends by itself.
/// Its output goes nowhere.
KilledProgram RunAndKill(const std::vector<std::string>& command,
                         const std::map<std::string, std::string>& environment, int change);

} // namespace quillon::test
