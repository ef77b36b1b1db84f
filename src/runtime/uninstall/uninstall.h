// Removes a product by the journal of its installation, from the last change to the first: exactly
// what was installed, and nothing else.
//
// - A file that the setup wrote goes, whether or not it was there before; in the Windows folder and
//   below, one that was there before stays, since others may need it.
// - A file with a backup comes back from it. A shared file stays until its last user goes.
// - A file that waits to be replaced at the machine's next start isn't any more.
// - A folder goes if the setup made it and it is empty.
// - A value that was there before gets its former data back if it still has ours.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"
#include "runtime/exit_codes.h"
#include "runtime/log/action_log.h"
#include "runtime/running_program.h"
#include "runtime/uninstall/installed_product.h"

namespace quillon {

struct UninstallInput {
    Host& host;
    Target& target;
    Ask& ask;
    ActionLog& log;
    Text journalPath;
    const InstalledProduct& product;
    RunningProgram* running = nullptr;
};

/// Something that is still there, and why, in the language of the installation.
struct LeftBehind {
    Text what;
    Text why;

    bool operator==(const LeftBehind&) const = default;
};

struct UninstallResult {
    /// `Failed` where something could not be removed; the rest is, and the product stays in the
    /// system's list, so that it can be tried again. `RestartNeeded` where something goes when the
    /// machine starts next.
    ExitCode code = ExitCode::Done;
    std::vector<LeftBehind> left;
};

UninstallResult Uninstall(const UninstallInput& input);

} // namespace quillon
