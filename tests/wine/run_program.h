// Runs a program of this machine to its end.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace quillon::test {

struct ProgramResult {
    int exitCode = -1;  // 124 where it ran out of time
    std::string output; // both streams, in the order in which they were written
};

/// `settings` are set in the program's surroundings, beside what is there.
ProgramResult RunProgram(const std::vector<std::string>& command,
                         const std::map<std::string, std::string>& settings = {});

} // namespace quillon::test
