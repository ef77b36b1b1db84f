// Copies of unsaved work, in case the program ends unexpectedly.
//
// Each running program has a place of its own in the folder "Recovery" of the tool's data: "1.qnp"
// with the project, "1.ini" with the name of the file that it belongs to and its digest, and
// "1.lock", which the system releases when the program ends in any way. So a copy whose lock is
// free was left behind. It is a project file like any other, written as a whole or not at all.
#pragma once

#include "shell/main_window.h"
#include "shell/session.h"

#include <memory>

namespace quillon {

/// What is changed is in a copy at most so long afterwards.
inline constexpr int kRecoverySeconds = 30;

class RecoveryCopy {
public:
    /// Takes a free place. Where there can be none, no copies are kept.
    explicit RecoveryCopy(Session& session);

    /// Writes the open project as it is in memory, which stays as it is; false where that failed.
    bool Keep();
    /// To be called when the project was saved, or is not to be saved.
    void Remove();

private:
    Session& session_;
    std::unique_ptr<FileLock> lock_;
    Text path_; // of the copy
    bool isKept_ = false;
};

/// Asks for each copy that was left behind whether to open it, until one is opened. "No" removes
/// it, "Cancel" keeps it until the next start. A project that is opened so counts as changed, under
/// the name of the file that it belongs to; its copy moves to `own`.
void OfferLeftCopies(Session& session, MainWindow& window, RecoveryCopy& own);

} // namespace quillon
