// What an installation does to the machine, as a journal on the disk: a line for each change,
// before the change is made. Whatever ends the setup (a failure, the user, a kill) the journal
// says how to take everything back, or, once it is committed, what is left to clear away.
//
// The constraints that shaped it:
//
// - Taking back writes nothing to a disk, so that a full one can't stop it: a file that is replaced
//   is moved aside on its own disk and comes back by one rename.
// - Taking back can be ended from outside too, and is then begun again. So each step looks at what
//   there is before it does anything, and a step done twice does no harm. That is why
//   `InstallTransaction` notes no `File` at a place whose former file is aside: it would be removed
//   after it came back.
// - Temporary files lie in folders of the transaction's own, one beside each place that it writes
//   to, so that a rename never leaves the disk. A folder is noted, not each name in it. It takes a
//   hundred files: where names are looked up by reading a whole folder, as on a disk that knows
//   upper and lower case apart, two thousand in one folder cost a minute.
// - The journal can't lie in a folder that the installation has yet to make. It is in the deepest
//   one that is there, and is looked for in the main folder and in each folder above it.
//
// What was considered and rejected:
//
// - Transactional NTFS: not on Windows XP, FAT or network drives, and deprecated since.
// - Copies of the former files in one backup folder: they need their room twice, on a disk that may
//   lack it, and coming back is another copy, which can fail for the same reason.
// - A line after each change: a kill between the two leaves a change that nothing names.
// - A snapshot of the registry's keys (RegSaveKey): it needs a privilege, takes whole branches, and
//   bringing one back undoes what other programs have written meanwhile.
//
// The lines are forced to the disk at the commit alone: they protect from a killed program, not
// from a power failure in the middle.
#pragma once

#include "platform/host.h"
#include "runtime/journal/journal_records.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// The first line of a journal, without its line break.
inline constexpr const char* kTransactionJournal = "Quillon installationsjournal 1";

/// Where a journal of an installation to that folder can lie.
std::vector<Text> JournalPaths(const Text& mainFolder);

/// Beside the journal, for as long as its installation runs.
Text LockPathOf(const Text& journalPath);

/// Whether such a file, a journal or its lock, may be trusted: it belongs to administrators, to the
/// system or to the user who runs this. On a server with users of its own, it belongs to the user
/// to whom a new file there belongs.
bool IsOfOwnUser(FileSystem& files, const Target& target, const Text& path);
/// All bytes of a journal that may be trusted; nothing of any other. Throws as
/// `FileSystem::OpenInput` does.
std::optional<std::string> ReadOwnJournal(FileSystem& files, const Target& target,
                                          const Text& path);

class TransactionJournal {
public:
    TransactionJournal(Host& host, Target& target) : host_(host), target_(target) {}

    /// From now on each step is on the disk before it is made. Throws where another installation to
    /// the same folder is at work.
    void Begin(const Text& mainFolder, const Text& product);
    void Note(JournalRecord step);
    /// About so many steps are still to come: where there are some ten thousand, growing bit by bit
    /// would take twice their memory.
    void Expect(std::size_t steps) { steps_.reserve(steps_.size() + steps); }
    /// A free name on the disk of `folder`, which exists, for a file of the transaction's own.
    Text TempPath(const Text& folder);
    /// From here on nothing can be undone, unless this throws.
    void Commit();
    /// Removes the journal, when everything is taken back or cleared away.
    void End();
    /// Leaves the journal to the next run.
    void Leave();

    const std::vector<JournalRecord>& Steps() const { return steps_; }

private:
    struct TempFolder {
        Text path;
        int files = 0;
    };
    void MakeTempFolder(const Text& beside, TempFolder& folder);

    Host& host_;
    Target& target_;
    Text path_;
    std::unique_ptr<FileLock> lock_;
    std::unique_ptr<OutputFile> file_;
    std::vector<JournalRecord> steps_;
    std::map<Text, TempFolder> tempFolders_; // by the lower-cased folder beside
};

} // namespace quillon
