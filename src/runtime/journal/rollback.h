// The way back from a transaction: from its steps in memory where the installation itself fails,
// and from its journal where it was ended from outside.
#pragma once

#include "platform/host.h"
#include "runtime/journal/journal_records.h"
#include "runtime/log/action_log.h"
#include "runtime/running_program.h"

#include <functional>
#include <vector>

namespace quillon {

struct RollbackInput {
    Host& host;
    Target& target;
    ActionLog& log;
    RunningProgram* running = nullptr; // this one, where it may be what has to go
};

/// Takes the steps back, from the last to the first, and then has their journal removed. False
/// where one could not be taken back; the log says which, and what is needed to try again stays,
/// the journal too. A value that somebody else has changed since is theirs, and stays; of a shared
/// file's users only our own is taken off.
bool Undo(const RollbackInput& input, const std::vector<JournalRecord>& steps,
          const std::function<void()>& removeJournal);

/// Removes the temporary files of steps that stay, now or when the machine starts next.
void CleanUp(const RollbackInput& input, const std::vector<JournalRecord>& steps,
             const std::set<Text>& kept = {});

enum class EarlierRun { None, Finished, Incomplete };

/// Finishes an installation to that folder that was interrupted from outside: a committed one is
/// cleared away, any other is taken back. Incomplete where something could not be taken back.
/// Throws where such an installation is still at work, or where its journal may not be trusted.
EarlierRun FinishInterrupted(const RollbackInput& input, const Text& mainFolder);

/// Takes the write protection off first, if there is one.
void RemoveEvenReadOnly(FileSystem& files, const Text& path);

} // namespace quillon
