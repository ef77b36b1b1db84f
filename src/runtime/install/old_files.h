// What an earlier version of the product has left that the new one lacks.
#pragma once

#include "runtime/install/install_plan.h"
#include "runtime/journal/install_transaction.h"

#include <map>

namespace quillon {

/// What the journal of the earlier installation says about the contents of its files; by path in
/// lower case.
using KnownContents = std::map<Text, record::Content>;

struct EarlierJournal {
    std::vector<JournalRecord> records; // but for names, texts and contents
    KnownContents contents;
};

/// The journal of an earlier installation; empty where there is none, or where a user with fewer
/// rights has made it.
EarlierJournal ReadEarlierJournal(const FileSystem& files, const Target& target, const Text& path);

struct OldFile {
    Text path;
    std::optional<Reason> stays; // why it does; nothing where it goes
};

/// What `RemoveOldFiles` would find, as far as that is known before anything is done: a file that a
/// script of the new version writes again is among them.
std::vector<OldFile> PlanOldFiles(const FileSystem& files, const Target& target,
                                  const InstallPlan& plan);

struct OldFilesWork {
    const Host& host;
    Target& target;
    InstallTransaction& transaction;
    InstallJournal& journal;
    ActionLog& log;
    const InstallPlan& plan;
};

/// Removes the files of the earlier version that are as they were installed and that no row of the
/// new one names, and the folders of the product that this empties. All others stay, and the log
/// says why. The first `earlierRecords` of the journal are those of the earlier version.
void RemoveOldFiles(const OldFilesWork& work, std::size_t earlierRecords,
                    const KnownContents& contents);

} // namespace quillon
