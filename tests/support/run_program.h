// Runs a whole program and says what it said and how it ended.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace quillon::test {

struct ProgramRun {
    int exitCode = -1; // -1 where the program was ended by a signal
    std::string out;
    std::string err;
};

// Nothing is forbidden to an administrator, so tests of missing rights run as the user "nobody".
enum class RunAs { Self, Nobody };

/// `environment` is set over the one of the test.
ProgramRun RunProgram(const std::vector<std::string>& command,
                      const std::map<std::string, std::string>& environment = {},
                      RunAs user = RunAs::Self);

} // namespace quillon::test
