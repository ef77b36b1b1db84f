// A setup of one file that runs without a user, and the logs that it writes for programs.
#pragma once

#include "runtime/support/setup_fixture.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace quillon::test {

class UnattendedFixture : public SetupFixture {
protected:
    UnattendedFixture() { AddFile("prog.exe", "%DESTDIR\\bin", "program"); }

    Text BytesOf(const Text& path) const
    {
        const auto found = memory.files.nodes.find(LowerCase(path));
        return found == memory.files.nodes.end() ? "<none>" : *found->second.bytes;
    }
    std::vector<nlohmann::json> Records(const Text& path) const
    {
        std::vector<nlohmann::json> records;
        Text line;
        for (const char c : BytesOf(path)) {
            if (c == '\n')
                records.push_back(nlohmann::json::parse(std::exchange(line, {})));
            else
                line += c;
        }
        EXPECT_EQ(line, "") << "the last record is whole";
        return records;
    }
    /// Runs what changes nothing on the machine.
    ExitCode RunInVain(const Text& switches)
    {
        const MachineState before = State();
        const ExitCode code = Install(switches);
        EXPECT_EQ(State(), before) << switches;
        return code;
    }
};

} // namespace quillon::test
