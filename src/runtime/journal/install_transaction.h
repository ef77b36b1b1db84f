// Changes to the machine that can be taken back. Each one is noted in the transaction's journal
// before it is made, so that an installation that fails half-way, or is killed, leaves the machine
// as it was; what the uninstaller has to know goes into the installation's journal as well.
#pragma once

#include "runtime/journal/install_journal.h"
#include "runtime/journal/rollback.h"
#include "runtime/journal/transaction_journal.h"

#include <unordered_map>

namespace quillon {

class InstallTransaction {
public:
    InstallTransaction(Host& host, Target& target, InstallJournal& installJournal, ActionLog& log);

    /// What is not recorded is taken back after a failure, but the uninstaller does not know of it.
    enum class Recorded { Yes, No };

    /// A finished file and the place that it goes to.
    struct NewFile {
        Text staged;
        Text path;
        bool replaces = false; // a file is there
        Recorded recorded = Recorded::Yes;
        bool keepsRights = false; // and the attributes of the file that it replaces
    };

    /// Before the first change. Throws where another installation to the same folder is at work.
    void Begin(const Text& mainFolder, const Text& product);

    /// Reserves memory for that many files.
    void ExpectFiles(std::size_t count);
    /// Creates the folder and its missing parents.
    void MakeFolder(const Text& folder);
    /// A name under which a file for that place can be written before it is put there. Its folder
    /// exists.
    Text StagingPath(const Text& path);
    void PutFile(const NewFile& file);
    /// The same for a file that is in use now and free when the machine starts next.
    void PutFileAtRestart(const NewFile& file);
    /// Keeps a second name for the file that is at `path`, which `PutFile` is about to replace.
    void KeepBackup(const Text& path);
    /// The file that is at `path` stays as it is and belongs to the product: once this is
    /// committed, the system does not remove it at the next start.
    void KeepFile(const Text& path);
    void RemoveFile(const Text& path);
    /// When everything is done, if the folder is empty by then: the files that were moved aside are
    /// in it.
    void RemoveFolderAtEnd(const Text& folder);

    // What they write and remove is logged here.
    void MakeKey(const RegistryKey& key);
    void WriteValue(const RegistryKey& key, const Text& name, const RegistryData& data,
                    Recorded recorded = Recorded::Yes);
    /// Nothing happens where there is no such value or key.
    void RemoveValue(const RegistryKey& key, const Text& name);
    void RemoveKeyWithAllBelow(const RegistryKey& key);

    void MakeShortcut(const Text& path, const Shortcut& shortcut);
    Registration RegisterServer(const Text& path);
    void AnnounceFont(const Text& path);

    bool NeedsRestart() const { return !atRestart_.empty(); }
    /// The changes stay: the last thing that can fail, the moves of the next start among it.
    void Commit();
    /// Removes the files that were moved aside.
    void CleanUp();
    /// False where something could not be taken back; the log says what, and the next run tries
    /// again.
    bool Undo();

private:
    bool TakeValueAway(const RegistryKey& key, const Text& name);
    void TakeKeyAway(const RegistryKey& key);
    void RecordFile(const Text& path, bool existed);
    void Move(const Text& from, const Text& to, const Text& place);
    void MoveAside(const Text& path);
    void MoveBack(const Text& path);
    void NoteNewFile(const NewFile& file);

    Host& host_;
    Target& target_;
    InstallJournal& installJournal_;
    ActionLog& log_;
    TransactionJournal journal_;
    std::unordered_map<Text, Text>
        movedAside_; // where the former files are, by their places in lower case
    std::vector<record::AtRestart> atRestart_;
    std::set<Text> kept_; // in lower case
};

} // namespace quillon
