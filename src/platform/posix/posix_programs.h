// Runs other programs of a POSIX machine.
#pragma once

#include "platform/posix/drive_map.h"
#include "platform/program_runner.h"

namespace quillon {

class PosixPrograms : public ProgramRunner {
public:
    /// `tempFolder` is a host path.
    PosixPrograms(const DriveMap& drives, std::string tempFolder)
        : drives_(drives), tempFolder_(std::move(tempFolder))
    {
    }

    bool IsInstalled(const Text& program) const override;
    ProgramOutcome Run(const ProgramOrder& order, const std::function<void()>& onWait) override;
    std::unique_ptr<WorkFolder> MakeWorkFolder() override;

private:
    std::vector<std::string> HostCommand(const ProgramOrder& order) const;

    const DriveMap& drives_;
    std::string tempFolder_;
};

} // namespace quillon
