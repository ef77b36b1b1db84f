// What the setup checks before it asks its user anything: the command line, the package and the
// machine. Each check ends the setup by a `SetupFailure`.
#pragma once

#include "runtime/setup_program.h"

namespace quillon {

struct SetupCheck {
    const SetupInput& input;
    const LoadedPackage& package;
    Ask& ask;
    ActionLog& log;
    InstallScope scope; // that the setup installs in
};

/// The switches, and whether another setup runs that they would disturb.
void CheckSwitches(const SetupCheck& check);
[[noreturn]] void RefuseSwitch(const LanguageTexts& texts, const Text& badSwitch);

void CheckPackage(const LoadedPackage& package);
/// Against the package's manifest. The archive of the package's files comes back open, so that what
/// was checked is what is read; nothing where there is none or it lies on several disks.
std::unique_ptr<InputFile> CheckFiles(const SetupCheck& check);

/// True also for a package that asks for none.
bool HasPassword(const Switches& switches, const SetupInformation& setup);
void CheckPassword(const SetupInput& input, const LoadedPackage& package);

/// Whether the user is asked about what the project only warns about. For a plan no user is asked.
bool MayWarn(const Switches& switches);

/// Whether the product is meant for this system. Asks about one that the project only warns about.
void CheckSystem(const SetupCheck& check);

/// Whether a newer version of the product is installed. Where no user is asked whether the older
/// one may replace it, the setup ends.
void CheckInstalledVersion(const SetupCheck& check);

} // namespace quillon
