// Everything that a program on a POSIX machine hands to the product, in one piece that main()
// makes.
#pragma once

#include "platform/host.h"
#include "platform/posix/posix_machine.h"
#include "platform/posix/posix_programs.h"

namespace quillon {

struct PosixHost {
    explicit PosixHost(MachineSettings settings = ReadMachineSettings());
    PosixHost(const PosixHost&) = delete;
    PosixHost& operator=(const PosixHost&) = delete;

    /// The folder that the running program is in, as a Windows path.
    Text ProgramFolder() const;
    /// Where the program writes: its own folder, or the user's where that one can't be written.
    Text OwnFolder() const;
    Text OwnFolder(const Text& programFolder) const;

    // A line for each setting that could not be used, to be shown to the user.
    std::vector<Text> complaints;
    DriveMap drives;
    PosixFiles files;
    PosixMachine machine;
    PosixPrograms programs;
    Host host{files, machine};

private:
    std::string dataFolder_; // a host path
};

} // namespace quillon
