// The record of an installation, from which the uninstaller removes what was installed and nothing
// else: a journal beside the product, in UTF-8. It is written ahead: a line stands on the disk
// before the change that it tells of is made, so that a broken-off installation can still be
// removed.
#pragma once

#include "platform/file_system.h"
#include "runtime/journal_records.h"

#include <memory>
#include <unordered_set>
#include <vector>

namespace quillon {

/// The records of a log file from its bytes, of this format or of the first; nothing where it is no
/// such log. A last line that broke off in the middle is left out.
std::optional<std::vector<JournalRecord>> ReadInstallLog(std::string_view bytes);

/// The logs of all products that share a main folder.
std::vector<Text> InstallLogsIn(const FileSystem& files, const Text& mainFolder);

/// The product that a log file is of; nothing where the file is no log.
std::optional<Text> ProductOfLog(const FileSystem& files, const Text& path);

class InstallLog {
public:
    /// Writes to the file from now on, beginning with all records so far.
    void Open(FileSystem& files, const Text& path);
    void Close();
    /// Writes no more; the file can be removed.
    void Abandon() { file_.reset(); }

    void Add(JournalRecord record);
    /// Whether the file's users have been counted by us, in this or an earlier installation.
    bool HasShared(std::string_view path) const;
    const std::vector<JournalRecord>& Records() const { return records_; }
    /// They stand before all others.
    void TakeOver(std::vector<JournalRecord> earlier);

private:
    void NoteShared(const JournalRecord& record);
    void Write(const JournalRecord& record);

    std::vector<JournalRecord> records_;
    std::unordered_set<Text> shared_; // in lower case
    std::unique_ptr<OutputFile> file_;
};

} // namespace quillon
