// What a product's journal as a whole says about each path. It is evaluated before the first record
// is undone, since undoing one changes what the others depend on.
#pragma once

#include "platform/host.h"
#include "runtime/journal/journal_records.h"
#include "runtime/texts/messages.h"

#include <map>
#include <set>
#include <vector>

namespace quillon {

class RecordedPaths {
public:
    /// `mainFolder` is where the journal is.
    RecordedPaths(const std::vector<JournalRecord>& records, const Host& host, const Target& target,
                  const Text& mainFolder);

    /// Whether other products use the file too.
    bool IsShared(const Text& path) const;
    /// The shared files that other products use too, and that this product has counted.
    const std::set<Text>& ToRelease() const { return toRelease_; }

    /// Whether the file of the `Replaced` record stays: because the former file is back, because
    /// the new one still waits for the restart, or for the reason of `WasInWindows`.
    bool KeepsReplaced(std::size_t index) const;
    /// Whether the file was in the Windows folder before the installation, where other programs may
    /// need it, and has no backup that comes back.
    bool WasInWindows(std::size_t index) const;
    /// Whether the file is still there after the uninstallation, so that its registration stays.
    bool Stays(const Text& path) const { return removed_.count(LowerCase(path)) == 0; }

    /// Replacements that still wait for the machine's next start.
    const std::vector<record::AtRestart>& Pending() const { return pending_; }

    /// Why nothing at that path may be touched; nothing where it may. A journal is followed only
    /// into the folders that it names, and through no link that was put in their place.
    std::optional<Message> WhyOutOfReach(const Text& path) const;
    /// Whether the folder, or one above it that the product made, is a link by now.
    bool IsBehindLink(const Text& folder) const
    {
        return target_.IsLink(folder) || HasLinkInPath(LowerCase(folder));
    }

private:
    void Note(std::size_t index, const JournalRecord& record);
    void NotePending(std::size_t index, const record::AtRestart& move);
    void FindWhatGoes();
    bool IsRecordedFolder(const Text& folder) const;
    bool IsBelowMadeFolder(const Text& folder) const;
    bool HasLinkInPath(const Text& folder) const;

    // The first backup of a path holds what was there before the product; once it is back, the
    // records after it name nothing that is left.
    struct FirstBackup {
        std::size_t index;
        bool exists;
    };

    const std::vector<JournalRecord>& records_;
    const Host& host_;
    const Target& target_;
    // All by paths in lower case.
    std::set<Text> made_;          // folders
    std::set<Text> places_;        // folders that were there before
    std::vector<Text> wholeTrees_; // folders with all below them
    std::map<Text, FirstBackup> backups_;
    std::set<std::size_t> waiting_; // Replaced records of what has not been replaced yet
    std::set<Text> counted_;
    std::set<Text> toRelease_;
    std::set<Text> removed_;
    std::vector<record::AtRestart> pending_;
    mutable std::map<Text, bool> links_;
};

} // namespace quillon
