// The journal of an installation, from which the uninstaller removes what was installed and nothing
// else: a file of journal lines beside the product, in UTF-8. It is written whole at the end of an
// installation; until then the transaction's own journal says what has been done.
#pragma once

#include "platform/file_system.h"
#include "runtime/journal/journal_records.h"

#include <deque>
#include <set>
#include <type_traits>
#include <unordered_set>
#include <vector>

namespace quillon {

/// The records of a journal from its bytes, of this format or of the first; nothing where it is no
/// such journal. A last line that broke off in the middle is left out.
std::optional<std::vector<JournalRecord>> ReadInstallJournal(std::string_view bytes);

/// The journals of all products that share a main folder.
std::vector<Text> InstallJournalsIn(const FileSystem& files, const Text& mainFolder);

/// The product that a journal is of; nothing where the file is no journal.
std::optional<Text> ProductOfJournal(const FileSystem& files, const Text& path);

class InstallJournal {
public:
    InstallJournal() = default;
    InstallJournal(const InstallJournal&) = delete;
    InstallJournal& operator=(const InstallJournal&) = delete;

    void Save(FileSystem& files, const Text& path) const;

    void Add(JournalRecord record);
    /// Whether there is a record of that kind with this path, ignoring case, of this or of an
    /// earlier installation.
    template <class Record>
    bool Has(std::string_view path) const
    {
        static_assert(!std::is_same_v<Record, record::Content>, "is kept as a line");
        return index_.contains(KeyOf(Record{Text(path)}));
    }
    /// Everything but contents about these files, by their paths in lower case.
    void Forget(const std::set<Text>& paths);
    /// Without those of contents, which stand at the end of the file.
    const std::deque<JournalRecord>& Records() const { return records_; }
    /// These records are before all others.
    void TakeOver(std::vector<JournalRecord> earlier);

private:
    void NotePlace(const JournalRecord& record);
    void AddContent(const JournalRecord& content);
    // Kind and subject, in lower case.
    static Text KeyOf(const JournalRecord& record);

    // Finds a record by its key, which is made at each comparison: stored keys would take as much
    // memory as the records.
    struct KeyHash {
        using is_transparent = void;
        std::size_t operator()(const Text& key) const { return std::hash<Text>{}(key); }
        std::size_t operator()(const JournalRecord* record) const
        {
            return (*this)(KeyOf(*record));
        }
    };
    struct KeyEqual {
        using is_transparent = void;
        bool operator()(const JournalRecord* a, const JournalRecord* b) const
        {
            return KeyOf(*a) == KeyOf(*b);
        }
        bool operator()(const Text& key, const JournalRecord* record) const
        {
            return key == KeyOf(*record);
        }
    };

    // Records have some hundred bytes and never move: a growing vector would hold them twice.
    std::deque<JournalRecord> records_;
    std::deque<Text> contents_; // lines, in pieces
    std::unordered_set<const JournalRecord*, KeyHash, KeyEqual> index_;
};

} // namespace quillon
