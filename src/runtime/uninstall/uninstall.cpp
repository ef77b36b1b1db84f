#include "runtime/uninstall/uninstall.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/ini_files/ini_changes.h"
#include "runtime/ini_files/startup_files.h"
#include "runtime/install/planned_shortcuts.h"
#include "runtime/install/uninstaller_files.h"
#include "runtime/journal/install_transaction.h"
#include "runtime/journal/recorded_paths.h"
#include "runtime/journal/restart_moves.h"
#include "runtime/shared_files.h"
#include "runtime/texts/failure_reason.h"
#include "runtime/uninstall_entry_key.h"

#include <algorithm>
#include <set>
#include <utility>

namespace quillon {

namespace {

class Uninstallation {
public:
    explicit Uninstallation(const UninstallInput& input)
        : input_(input), files_(input.host.files), records_(input.product.records),
          mainFolder_(ExtractDirectory(input.journalPath)),
          paths_(records_, input.host, input.target, mainFolder_),
          entry_(RecordedUninstallEntry(input.product.name, records_))
    {
    }

    UninstallResult Run();

private:
    enum class Part { AllButEntry, Entry };
    enum class Folders { Others, OfProductItself };

    void UndoAll(Part part);
    void Undo(std::size_t index);
    void Undo(const record::File& file) { RemoveFile(file.path); }
    void Undo(const record::Backup& backup) { RestoreBackup(backup.path, backup.kept); }
    void Undo(const record::Shared& shared) { RemoveSharedFile(shared.path); }
    void Undo(const record::Font& font);
    void Undo(const record::Registered& registered);
    void Undo(const record::Key& key) { RemoveKeyIfEmpty(key.key); }
    void Undo(const record::Value& value);
    void Undo(const record::UninstallKey& key) { RemoveKeyWithAllBelow(key.key); }
    void Undo(const record::UninstallValue& value) { RemoveValue(value.key, value.name); }
    void Undo(const record::IniFile& change) { UndoIni(change); }
    void Undo(const record::IniOpenEnd& change) { UndoIni(change); }
    void Undo(const record::IniSection& change) { UndoIni(change); }
    void Undo(const record::IniValue& change) { UndoIni(change); }
    void Undo(const record::StartupLine& line)
    {
        if (IsInReach(line.path))
            UndoStartupLine({files_, input_.target}, line);
    }
    // What names the product or belongs to the installation alone. Folders and what waits for
    // the machine's next start go last.
    template <class Record>
    void Undo(const Record&)
    {
    }
    template <class Record>
    void UndoIni(const Record& change)
    {
        if (IsInReach(change.path))
            UndoIniChange({files_, input_.target}, change);
    }
    bool IsInReach(const Text& path);
    void RemoveFile(const Text& path);
    void RemoveReplaced(std::size_t index);
    void RestoreBackup(const Text& path, const Text& backup);
    void PutBackAtRestart(const Text& path, const Text& backup);
    void ReleaseSharedFiles();
    void RemoveSharedFile(const Text& path);
    void RemoveValue(const RegistryKey& key, const Text& name);
    void RemoveKeyIfEmpty(const RegistryKey& key);
    void RemoveKeysThatAreEmptyByNow();
    void NoteWhatIsNotEmpty();
    void RemoveKeyWithAllBelow(const RegistryKey& key);
    void UndoRestart(const record::AtRestart& move);
    void RemoveProductItself();
    void RemoveWhatUninstallerLines(const Text& uninstaller);
    void RemoveFolders(Folders which);
    void RemoveFolder(const Text& folder);
    bool HoldsOnlyWhatGoes(const Text& folder) const;
    bool IsOfEntry(const JournalRecord& record) const;
    Text JournalOfEntry() const;
    void RemoveEntry();
    void Stays(const Text& what, const Reason& reason);
    void NoteLeft(const Text& what, const Text& why);
    void LeaveToRestart(const Text& path);
    template <class Work>
    void Attempt(const Text& what, Work work);

    const UninstallInput& input_;
    FileSystem& files_;
    const std::vector<JournalRecord>& records_;
    const Text mainFolder_;
    const RecordedPaths paths_;
    const RegistryKey entry_;
    std::set<Text> goesAtRestart_; // in lower case
    std::vector<LeftBehind> left_;
    std::set<Text> named_; // what is in that list, in lower case
    // What was not empty when its turn came.
    std::vector<RegistryKey> keysLeft_;
    std::vector<Text> foldersLeft_;
    bool partly_ = false;
};

// Several records name a path where the product was installed more than once.
void Uninstallation::NoteLeft(const Text& what, const Text& why)
{
    if (named_.insert(LowerCase(what)).second)
        left_.push_back({what, why});
}

void Uninstallation::Stays(const Text& what, const Reason& reason)
{
    input_.log.Skipped(what, reason);
    NoteLeft(what, input_.product.texts(reason));
}

// The system makes its moves in their order. One that an earlier run has asked for goes to the end,
// where it removes nothing that comes back before it.
void Uninstallation::LeaveToRestart(const Text& path)
{
    ForgetMoveAtRestart(input_.target, path);
    input_.target.MoveAtRestart(path, "");
    goesAtRestart_.insert(LowerCase(path));
    input_.log.Line(Message::LogRemovesAtRestart, path);
    NoteLeft(path, input_.product.texts[Message::ReasonAtRestart]);
}

// A failure at one record does not stop the removal of the others.
template <class Work>
void Uninstallation::Attempt(const Text& what, Work work)
{
    try {
        work();
    } catch (const std::exception& error) {
        partly_ = true;
        input_.log.CannotRemove(what, error);
        NoteLeft(what, FailureReason(error, input_.product.texts));
    }
}

// The program, its journal and its entry in the system's list are removed last: an uninstallation
// that was interrupted, or could not remove everything, can be started again.
UninstallResult Uninstallation::Run()
{
    const auto hold = input_.target.HoldShutdown(input_.product.texts[Message::UninstallRunning]);
    input_.ask.AddStatusLine(input_.product.texts[Message::UninstallRunning]);
    Attempt(input_.journalPath, [&] { ReleaseSharedFiles(); });
    UndoAll(Part::AllButEntry);
    for (const record::AtRestart& move : paths_.Pending())
        Attempt(move.from, [&] { UndoRestart(move); });
    RemoveKeysThatAreEmptyByNow();
    RemoveFolders(Folders::Others);
    if (!partly_)
        RemoveEntry();
    if (!partly_)
        Attempt(input_.journalPath, [&] { RemoveProductItself(); });
    RemoveFolders(Folders::OfProductItself);
    NoteWhatIsNotEmpty();
    const ExitCode done = goesAtRestart_.empty() ? ExitCode::Done : ExitCode::RestartNeeded;
    return {partly_ ? ExitCode::Failed : done, std::move(left_)};
}

/// The journal that the entry's uninstaller obeys; empty where it names none.
Text Uninstallation::JournalOfEntry() const
{
    const auto data = input_.target.ReadValue(entry_, kUninstallString);
    return ReadUninstallCommand(data ? TextOf(*data).value_or("") : Text()).journal;
}

// The product may have been installed in another folder since. Its entry starts that one's
// uninstaller, and goes with it. Where another copy was there before, its entry comes back, but not
// that of a copy that has gone meanwhile.
void Uninstallation::RemoveEntry()
{
    const Text journal = JournalOfEntry();
    if (!journal.empty() &&
        !EqualIgnoreCase(files_.ShortPath(journal), files_.ShortPath(input_.journalPath))) {
        input_.log.Skipped(KeyText(entry_), {Message::ReasonValueChanged});
        return;
    }
    UndoAll(Part::Entry);
    const Text former = JournalOfEntry();
    if (!former.empty() && !files_.FileExists(former))
        Attempt(KeyText(entry_), [&] { RemoveKeyWithAllBelow(entry_); });
}

void Uninstallation::UndoAll(Part part)
{
    for (std::size_t left = records_.size(); left > 0; --left) {
        const JournalRecord& record = records_[left - 1];
        if (IsOfEntry(record) == (part == Part::Entry))
            Attempt(SubjectOf(record), [&] { Undo(left - 1); });
        if (part == Part::AllButEntry)
            input_.ask.ShowProgress(records_.size() - left + 1, records_.size());
    }
}

// The keys above the entry can be removed only after it.
bool Uninstallation::IsOfEntry(const JournalRecord& record) const
{
    if (const auto* const value = std::get_if<record::Value>(&record))
        return EqualIgnoreCase(KeyText(value->key), KeyText(entry_));
    const auto* const key = std::get_if<record::Key>(&record);
    return key != nullptr &&
           LowerCase(KeyText(entry_) + "\\").starts_with(LowerCase(KeyText(key->key) + "\\"));
}

void Uninstallation::Undo(std::size_t index)
{
    if (std::holds_alternative<record::Replaced>(records_[index]))
        RemoveReplaced(index);
    else
        std::visit([&](const auto& record) { Undo(record); }, records_[index]);
}

void Uninstallation::Undo(const record::Font& font)
{
    if (!paths_.Stays(font.path) && IsInReach(font.path))
        input_.target.AnnounceFont(font.path, false);
}

void Uninstallation::Undo(const record::Registered& registered)
{
    const Text& path = registered.path;
    if (files_.FileExists(path) && !paths_.Stays(path) && IsInReach(path))
        input_.target.RegisterServer(path, false);
}

bool Uninstallation::IsInReach(const Text& path)
{
    const auto reason = paths_.WhyOutOfReach(path);
    if (reason)
        Stays(path, {*reason});
    return !reason;
}

void Uninstallation::RemoveFile(const Text& path)
{
    if (!files_.FileExists(path) || !IsInReach(path))
        return;
    if (paths_.IsShared(path)) {
        Stays(path, {Message::ReasonUsedByOthers});
        return;
    }
    try {
        RemoveEvenReadOnly(files_, path);
        input_.log.Line(Message::LogRemoves, path);
    } catch (const RunError&) {
        LeaveToRestart(path);
    }
}

void Uninstallation::RemoveReplaced(std::size_t index)
{
    const Text path = SubjectOf(records_[index]);
    if (paths_.WasInWindows(index))
        Stays(path, {Message::ReasonWasInWindows});
    else if (!paths_.KeepsReplaced(index))
        RemoveFile(path);
}

void Uninstallation::RestoreBackup(const Text& path, const Text& backup)
{
    const bool waits = goesAtRestart_.count(LowerCase(path)) > 0;
    if ((files_.FileExists(path) && !waits) || !files_.FileExists(backup) || !IsInReach(path) ||
        !IsInReach(backup))
        return;
    if (waits) {
        PutBackAtRestart(path, backup);
        return;
    }
    files_.Rename(backup, path);
    input_.log.Line(Message::LogPutsBack, path);
    // An earlier run may have found the file in use.
    ForgetMoveAtRestart(input_.target, backup);
    ForgetMoveAtRestart(input_.target, path);
}

// Placed behind the removal of the file that is in use now.
void Uninstallation::PutBackAtRestart(const Text& path, const Text& backup)
{
    ForgetMoveAtRestart(input_.target, backup);
    input_.target.MoveAtRestart(backup, path);
    input_.log.Line(Message::LogPutsBackAtRestart, path);
    NoteLeft(backup, input_.product.texts(Message::ReasonBackAtRestart, path));
}

// Only our journal says that this product is in the count of a file's users. So the journal is
// changed first: an uninstallation that is repeated must not lower the count twice.
void Uninstallation::ReleaseSharedFiles()
{
    if (paths_.ToRelease().empty())
        return;
    ForgetSharedFiles({files_, input_.target, input_.journalPath}, records_, paths_.ToRelease());
    for (const JournalRecord& record : records_) {
        const auto* const shared = std::get_if<record::Shared>(&record);
        const auto count =
            shared != nullptr && paths_.ToRelease().count(LowerCase(shared->path)) > 0
                ? CountOfUsers(input_.target, shared->path)
                : std::nullopt;
        if (count && *count > 1)
            input_.target.WriteValue(SharedFilesKey(), shared->path, NumberData(*count - 1));
    }
}

// The last product that uses a shared file removes it. Where the count is lost, the last one is
// unknown, and a file is removed only if it has a record of its own. The count is removed after the
// file, so that it is still known if that fails.
void Uninstallation::RemoveSharedFile(const Text& path)
{
    if (paths_.IsShared(path) || !CountOfUsers(input_.target, path))
        return;
    RemoveFile(path);
    RemoveValue(SharedFilesKey(), path);
}

void Uninstallation::Undo(const record::Value& value)
{
    const auto present = input_.target.ReadValue(value.key, value.name);
    if (!present)
        return;
    if (!value.former)
        RemoveValue(value.key, value.name);
    else if (*present == value.data)
        input_.target.WriteValue(value.key, value.name, *value.former);
    else
        Stays(ValueText(value.key, value.name), {Message::ReasonValueChanged});
}

void Uninstallation::RemoveValue(const RegistryKey& key, const Text& name)
{
    if (!input_.target.ReadValue(key, name))
        return;
    input_.target.RemoveValue(key, name);
    input_.log.Line(Message::LogRemovesRegistry, ValueText(key, name));
}

void Uninstallation::RemoveKeyIfEmpty(const RegistryKey& key)
{
    if (!input_.target.KeyExists(key))
        return;
    if (!input_.target.SubKeys(key).empty() || !input_.target.ValueNames(key).empty()) {
        input_.log.Skipped(KeyText(key), {Message::ReasonKeyNotEmpty});
        keysLeft_.push_back(key);
        return;
    }
    input_.target.RemoveKey(key);
    input_.log.Line(Message::LogRemovesRegistry, KeyText(key));
}

// The lines of UNINSTALL= may have emptied keys whose own turn came before.
void Uninstallation::RemoveKeysThatAreEmptyByNow()
{
    for (const RegistryKey& key : std::exchange(keysLeft_, {}))
        Attempt(KeyText(key), [&] { RemoveKeyIfEmpty(key); });
}

// A folder that several installations name was not empty at its first turn, but may be gone by now.
void Uninstallation::NoteWhatIsNotEmpty()
{
    for (const Text& folder : foldersLeft_)
        if (files_.DirExists(folder))
            NoteLeft(folder, input_.product.texts[Message::ReasonFolderNotEmpty]);
    for (const RegistryKey& key : keysLeft_)
        NoteLeft(KeyText(key), input_.product.texts[Message::ReasonKeyNotEmpty]);
}

void Uninstallation::RemoveKeyWithAllBelow(const RegistryKey& key)
{
    if (!input_.target.KeyExists(key))
        return;
    for (const Text& name : input_.target.SubKeys(key))
        RemoveKeyWithAllBelow({key.root, key.subKey + "\\" + name});
    input_.target.RemoveKey(key);
    input_.log.Line(Message::LogRemovesRegistry, KeyText(key));
}

// Removes the file that would have replaced another one at the next start; the one that is there
// stays.
void Uninstallation::UndoRestart(const record::AtRestart& move)
{
    const Text place = LowerCase(ExtractDirectory(move.to) + "\\");
    // A path that is not plain could lead out of the place that it begins with.
    const bool isBeside =
        ResolvePath(move.from) == move.from && LowerCase(move.from).starts_with(place);
    if (!isBeside || !IsInReach(move.to))
        return;
    RemoveWaitingFile(files_, input_.target, move);
    input_.log.Line(Message::LogTakesBackRestart, move.to);
}

void Uninstallation::RemoveProductItself()
{
    const Text uninstaller = UninstallerPath(mainFolder_);
    if (IsUninstallerRemovedWith(files_, input_.journalPath, uninstaller)) {
        if (input_.running != nullptr)
            input_.running->MoveAway(uninstaller);
        RemoveFile(uninstaller);
        RemoveWhatUninstallerLines(uninstaller);
    }
    RemoveFile(input_.journalPath);
}

// After the uninstaller, which needs them as long as it can be started.
void Uninstallation::RemoveWhatUninstallerLines(const Text& uninstaller)
{
    for (const Text& path : FilesOfUninstaller(mainFolder_))
        if (files_.FileExists(path) && goesAtRestart_.count(LowerCase(uninstaller)) > 0)
            LeaveToRestart(path);
        else
            RemoveFile(path);
}

// The main folder and those above it hold the journal, without which the product's folders are not
// known.
void Uninstallation::RemoveFolders(Folders which)
{
    const Text journal = LowerCase(input_.journalPath);
    for (auto record = records_.rbegin(); record != records_.rend(); ++record) {
        const auto* const folder = std::get_if<record::Folder>(&*record);
        if (folder == nullptr)
            continue;
        const bool holdsJournal = journal.starts_with(LowerCase(folder->path) + "\\");
        if (holdsJournal == (which == Folders::OfProductItself))
            Attempt(folder->path, [&] { RemoveFolder(folder->path); });
    }
}

void Uninstallation::RemoveFolder(const Text& folder)
{
    if (!files_.DirExists(folder))
        return;
    if (paths_.IsBehindLink(folder)) {
        Stays(folder, {Message::ReasonLinkInPath});
        return;
    }
    if (!HoldsOnlyWhatGoes(folder)) {
        input_.log.Skipped(folder, {Message::ReasonFolderNotEmpty});
        foldersLeft_.push_back(folder);
        return;
    }
    if (files_.List(folder).empty()) {
        files_.RemoveFolder(folder);
        input_.log.Line(Message::LogRemovesFolder, folder);
        return;
    }
    LeaveToRestart(folder);
}

bool Uninstallation::HoldsOnlyWhatGoes(const Text& folder) const
{
    const std::vector<FolderEntry> entries = files_.List(folder);
    // An installation that was undone may have left a program there that ran, such as this one.
    return std::all_of(entries.begin(), entries.end(), [&](const FolderEntry& entry) {
        const Text path = JoinPath(folder, entry.name);
        return goesAtRestart_.count(LowerCase(path)) > 0 || IsRemovedAtRestart(input_.target, path);
    });
}

} // namespace

UninstallResult Uninstall(const UninstallInput& input)
{
    return Uninstallation(input).Run();
}

} // namespace quillon
