// What the record of the end calls each result: one word for programs that read it.
#pragma once

#include "runtime/exit_codes.h"

namespace quillon {

struct ResultName {
    ExitCode code;
    const char* name;
};

inline constexpr ResultName kResultNames[] = {
    {ExitCode::Done, "done"},
    {ExitCode::RestartNeeded, "done"},
    {ExitCode::RestartStarted, "done"},
    {ExitCode::DiskFull, "disk full"},
    {ExitCode::Cancelled, "cancelled"},
    {ExitCode::NothingInstalled, "not installed"},
    {ExitCode::AlreadyUninstalled, "already uninstalled"},
    {ExitCode::OtherSetupRuns, "another setup runs"},
    {ExitCode::Forbidden, "forbidden"},
    {ExitCode::WrongSystem, "wrong system"},
    {ExitCode::NewerInstalled, "newer version installed"},
    {ExitCode::BadSwitch, "bad switch"},
    {ExitCode::DamagedPackage, "damaged package"},
    {ExitCode::PrerequisiteMissing, "prerequisite missing"},
    {ExitCode::FileInUse, "file in use"},
};

constexpr const char* NameOfResult(ExitCode code)
{
    for (const ResultName& result : kResultNames)
        if (result.code == code)
            return result.name;
    return "failed";
}

} // namespace quillon
