// The exit codes of the setup and the uninstaller. The numbers are those that Windows itself uses
// for the same ends, so that scripts and deployment tools know them; what Windows has no number for
// begins at 20001, where it has none of any kind.
#pragma once

#include "helpers/text.h"

#include <exception>
#include <utility>

namespace quillon {

enum class ExitCode : int {
    Done = 0,
    DiskFull = 112,
    Cancelled = 1602,
    Failed = 1603, // and undone: the machine is as it was before
    NothingInstalled = 1605,
    AlreadyUninstalled =
        1614, // what is left of it goes at the next start, or its uninstaller has gone
    OtherSetupRuns = 1618,
    Forbidden = 1625, // for those users, by the project or the system
    WrongSystem = 1633,
    NewerInstalled = 1638, // a newer version of the product
    BadSwitch = 1639,
    RestartStarted = 1641, // done, and the machine is on its way to its next start
    RestartNeeded = 3010,  // done, but the product is whole only after the next start
    DamagedPackage = 20001,
    PrerequisiteMissing = 20002,
    FileInUse = 20003, // by a program that goes on running; undone
};

/// Ends the installation. `what` is for the user and the log, in the user's language.
class SetupFailure : public std::exception {
public:
    SetupFailure(ExitCode code, Text what) : code_(code), what_(std::move(what)) {}

    ExitCode Code() const { return code_; }
    const char* what() const noexcept override { return what_.c_str(); }

private:
    ExitCode code_;
    Text what_;
};

} // namespace quillon
