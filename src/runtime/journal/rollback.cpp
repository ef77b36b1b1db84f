#include "runtime/journal/rollback.h"

#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/journal/journal_table.h"
#include "runtime/journal/restart_moves.h"
#include "runtime/journal/started_setups.h"
#include "runtime/journal/transaction_journal.h"
#include "runtime/shared_files.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace quillon {

namespace {

using Paths = std::set<Text>; // in lower case

class Rollback {
public:
    explicit Rollback(const RollbackInput& input)
        : log_(input.log), host_(input.host), files_(input.host.files), target_(input.target),
          running_(input.running)
    {
    }

    bool UndoAll(const std::vector<JournalRecord>& steps);
    /// Takes this product off the counts that others have changed since. Doing so twice would take
    /// another product off, so the journal is removed before this.
    void LowerCounts();
    /// Removes a temporary folder with all but what has to stay.
    void EmptyTempFolder(const Text& folder, const Paths& staying);

private:
    void Undo(const record::Folder& folder);
    void Undo(const record::File& file);
    void Undo(const record::MovedAside& file);
    void Undo(const record::InsteadOf& file);
    void Undo(const record::TempFolder& folder) { EmptyTempFolder(folder.path, lost_); }
    void Undo(const record::Key& key);
    void Undo(const record::RemovedKey& key) { target_.MakeKey(key.key); }
    void Undo(const record::FormerValue& value);
    void Undo(const record::WrittenValue& value) { written_ = value; }
    bool IsOthersNow(const record::FormerValue& value);
    void Undo(const record::Registered& file);
    void Undo(const record::RegisteredBefore& file);
    void Undo(const record::Font& font);
    void Undo(const record::AnnouncedBefore& font);
    void Undo(const record::AtRestart& move) { ForgetMoveAtRestart(target_, move.from); }
    // Records that are no steps of a transaction, or need no undoing.
    template <class Record>
    void Undo(const Record&)
    {
    }
    void MakeWay(const Text& path);

    ActionLog& log_;
    Host& host_;
    FileSystem& files_;
    Target& target_;
    RunningProgram* const running_;
    std::optional<record::WrittenValue> written_; // by the step behind the one that is undone
    std::map<Text, Text> counts_; // of shared files, that others have changed; by lower case
    Paths lost_;                  // files aside that could not come back, and must not go
    // The files unregistered and the fonts withdrawn in this rollback.
    Paths unregistered_;
    Paths withdrawn_;
};

bool Rollback::UndoAll(const std::vector<JournalRecord>& steps)
{
    bool whole = true;
    for (std::size_t left = steps.size(); left > 0; --left) {
        try {
            std::visit([&](const auto& step) { Undo(step); }, steps[left - 1]);
        } catch (const std::exception& error) { // the steps before must be undone
            whole = false;
            log_.CannotUndo(error);
        }
    }
    return whole;
}

void Rollback::Undo(const record::Folder& folder)
{
    if (!files_.DirExists(folder.path))
        return;
    const std::vector<FolderEntry> entries = files_.List(folder.path);
    const bool goesWithAll = std::all_of(entries.begin(), entries.end(), [&](const auto& entry) {
        return IsRemovedAtRestart(target_, JoinPath(folder.path, entry.name));
    });
    if (entries.empty())
        files_.RemoveFolder(folder.path);
    else if (goesWithAll)
        target_.MoveAtRestart(folder.path, "");
}

// A file that another product has counted since is needed by that one.
void Rollback::Undo(const record::File& file)
{
    if (counts_.count(LowerCase(file.path)) == 0)
        MakeWay(file.path);
    else if (files_.FileExists(file.path))
        log_.Skipped(file.path, {Message::ReasonUsedByOthers});
}

void Rollback::Undo(const record::MovedAside& file)
{
    if (!files_.FileExists(file.aside))
        return;
    try {
        MakeWay(file.path);
        files_.Rename(file.aside, file.path);
    } catch (...) {
        lost_.insert(LowerCase(file.aside));
        throw;
    }
}

void Rollback::Undo(const record::InsteadOf& file)
{
    if (files_.FileExists(file.aside))
        MakeWay(file.path);
}

void Rollback::Undo(const record::Key& key)
{
    const bool isEmpty = target_.KeyExists(key.key) && target_.SubKeys(key.key).empty() &&
                         target_.ValueNames(key.key).empty();
    if (isEmpty)
        target_.RemoveKey(key.key);
}

// Whether the value was changed since the setup wrote it. The journal of an older setup does not
// say what was written. A value that no longer exists can't be overwritten by undoing.
bool Rollback::IsOthersNow(const record::FormerValue& value)
{
    const auto written = std::exchange(written_, std::nullopt);
    if (!written || !(written->key == value.key) || written->name != value.name)
        return false;
    const auto present = target_.ReadValue(value.key, value.name);
    return present && present != written->data && present != value.former;
}

void Rollback::Undo(const record::FormerValue& value)
{
    if (IsOthersNow(value)) {
        if (value.key == SharedFilesKey())
            counts_.emplace(LowerCase(value.name), value.name);
        else
            log_.Skipped(ValueText(value.key, value.name), {Message::ReasonValueChanged});
        return;
    }
    if (value.former) {
        target_.MakeKey(value.key);
        target_.WriteValue(value.key, value.name, *value.former);
    } else if (target_.ReadValue(value.key, value.name)) {
        target_.RemoveValue(value.key, value.name);
    }
}

void Rollback::LowerCounts()
{
    for (const auto& [id, path] : counts_) {
        const auto users = CountOfUsers(target_, path);
        try {
            if (users && *users > 1)
                target_.WriteValue(SharedFilesKey(), path, NumberData(*users - 1));
            else if (users)
                target_.RemoveValue(SharedFilesKey(), path);
        } catch (const std::exception& error) {
            log_.CannotUndo(error);
        }
    }
}

// Where the file is gone, an earlier way back may have been killed between this step and the former
// file's return.
void Rollback::Undo(const record::Registered& file)
{
    unregistered_.insert(LowerCase(file.path));
    if (files_.FileExists(file.path))
        target_.RegisterServer(file.path, false);
}

// The former file is in its place again, and the system has just forgotten it.
void Rollback::Undo(const record::RegisteredBefore& file)
{
    if (unregistered_.count(LowerCase(file.path)) > 0 && files_.FileExists(file.path))
        target_.RegisterServer(file.path, true);
}

void Rollback::Undo(const record::Font& font)
{
    target_.AnnounceFont(font.path, false);
    withdrawn_.insert(LowerCase(font.path));
}

void Rollback::Undo(const record::AnnouncedBefore& font)
{
    if (withdrawn_.count(LowerCase(font.path)) > 0)
        target_.AnnounceFont(font.path, true);
}

// The file of a running program can't be removed, but it can be moved.
void Rollback::MakeWay(const Text& path)
{
    if (!files_.FileExists(path))
        return;
    std::optional<RunError> failure;
    if (RunErrorNumber([&] { RemoveEvenReadOnly(files_, path); }, failure) == ErrorNumber::kNone)
        return;
    if (running_ != nullptr)
        running_->MoveAway(path);
    if (!files_.FileExists(path))
        return;
    const Text away = JoinPath(ExtractDirectory(path),
                               "~qn" + NumberText(host_.machine.Random(1000000)) + "away.tmp");
    if (RunErrorNumber([&] { files_.Rename(path, away); }) != ErrorNumber::kNone)
        throw *failure;
    target_.MoveAtRestart(away, "");
}

void Rollback::EmptyTempFolder(const Text& folder, const Paths& staying)
{
    if (!files_.DirExists(folder))
        return;
    bool isEmpty = true;
    for (const FolderEntry& entry : files_.List(folder)) {
        const Text path = JoinPath(folder, entry.name);
        const bool stays = staying.count(LowerCase(path)) > 0;
        const auto remove = [&] {
            if (entry.status.isReadOnly)
                files_.SetReadOnly(path, false);
            files_.RemoveFile(path);
        };
        if (!stays && RunErrorNumber(remove) == ErrorNumber::kNone)
            continue;
        isEmpty = false;
        // A running program still holds the file that it was started from.
        if (!stays)
            target_.MoveAtRestart(path, "");
    }
    if (isEmpty)
        files_.RemoveFolder(folder);
    else // by then what stays has moved to its place; a folder that is not empty does not go
        target_.MoveAtRestart(folder, "");
}

// The places whose file is already the one that this transaction wants.
Paths PlacesDone(const std::vector<JournalRecord>& steps)
{
    Paths places;
    for (const JournalRecord& step : steps)
        if (std::holds_alternative<record::File>(step) ||
            std::holds_alternative<record::MovedAside>(step))
            places.insert(LowerCase(SubjectOf(step)));
    for (const JournalRecord& step : steps)
        if (const auto* const move = std::get_if<record::AtRestart>(&step))
            places.erase(LowerCase(move->to));
    return places;
}

// True for the beginning of a journal that has no step yet.
bool HasNoStep(const std::string& bytes)
{
    return (kTransactionJournal + Text(kLineBreak)).starts_with(bytes);
}

void ForgetNotes(Target& target, const std::vector<JournalRecord>& steps)
{
    for (const JournalRecord& step : steps)
        if (const auto* const product = std::get_if<record::Product>(&step))
            ForgetStartedSetups(target, product->name);
}

bool FinishOne(const RollbackInput& input, const Text& path)
{
    FileSystem& files = input.host.files;
    const auto lock = files.Lock(LockPathOf(path), LockWait::None);
    if (!lock)
        throw RunError(ErrorNumber::kPermissionDenied, path);
    // A user who may write to a folder above a product's could have made both files.
    const bool isLockOurs = IsOfOwnUser(files, input.target, LockPathOf(path));
    const auto bytes = ReadOwnJournal(files, input.target, path);
    if (!isLockOurs || !bytes)
        throw RunError(ErrorNumber::kPathFileAccess, path);
    const auto steps = ReadJournal(*bytes, kTransactionJournal);
    if (!steps && !HasNoStep(*bytes))
        throw RunError(ErrorNumber::kPathFileAccess, path);
    const auto removeJournal = [&] {
        files.RemoveFile(path);
        ForgetNotes(input.target, steps.value_or(std::vector<JournalRecord>{}));
    };
    const bool isCommitted =
        steps && std::any_of(steps->begin(), steps->end(), [](const JournalRecord& step) {
            return std::holds_alternative<record::Committed>(step);
        });
    if (steps && !isCommitted) {
        input.log.Line(Message::LogUndoesInterrupted, path);
        return Undo(input, *steps, removeJournal);
    }
    if (steps) {
        input.log.Line(Message::LogClearsInterrupted, path);
        CleanUp(input, *steps);
    }
    removeJournal();
    return true;
}

// The files that were moved aside were in it, too.
void RemoveLeavingFolder(const RollbackInput& input, const Text& folder)
{
    FileSystem& files = input.host.files;
    if (!files.DirExists(folder))
        return;
    if (!files.List(folder).empty()) {
        input.log.Skipped(folder, {Message::ReasonFolderNotEmpty});
        return;
    }
    files.RemoveFolder(folder);
    input.log.Line(Message::LogRemovesFolder, folder);
}

} // namespace

bool Undo(const RollbackInput& input, const std::vector<JournalRecord>& steps,
          const std::function<void()>& removeJournal)
{
    Rollback rollback(input);
    if (!rollback.UndoAll(steps))
        return false;
    removeJournal();
    // A setup that is killed here leaves a count that is too high, whose only effect is that the
    // file stays.
    rollback.LowerCounts();
    return true;
}

void CleanUp(const RollbackInput& input, const std::vector<JournalRecord>& steps,
             const std::set<Text>& kept)
{
    const auto attempt = [&](const Text& what, auto work) {
        std::optional<RunError> failure;
        if (RunErrorNumber(work, failure) != ErrorNumber::kNone)
            input.log.CannotRemove(what, *failure);
    };
    attempt(kRestartMoves,
            [&] { ForgetMovesTo(input.host.files, input.target, PlacesDone(steps)); });
    attempt(kRestartMoves, [&] { ForgetRemovals(input.target, kept); });
    Paths pending;
    for (const JournalRecord& step : steps)
        if (const auto* const move = std::get_if<record::AtRestart>(&step))
            pending.insert(LowerCase(move->from));
    Rollback rollback(input);
    for (const JournalRecord& step : steps)
        if (const auto* const folder = std::get_if<record::TempFolder>(&step))
            attempt(folder->path, [&] { rollback.EmptyTempFolder(folder->path, pending); });
    for (const JournalRecord& step : steps)
        if (const auto* const folder = std::get_if<record::LeavingFolder>(&step))
            attempt(folder->path, [&] { RemoveLeavingFolder(input, folder->path); });
}

EarlierRun FinishInterrupted(const RollbackInput& input, const Text& mainFolder)
{
    EarlierRun earlier = EarlierRun::None;
    for (const Text& path : JournalPaths(mainFolder)) {
        if (!input.host.files.FileExists(path))
            continue;
        if (!FinishOne(input, path))
            earlier = EarlierRun::Incomplete;
        else if (earlier == EarlierRun::None)
            earlier = EarlierRun::Finished;
    }
    return earlier;
}

void RemoveEvenReadOnly(FileSystem& files, const Text& path)
{
    if (files.Status(path).isReadOnly)
        files.SetReadOnly(path, false);
    files.RemoveFile(path);
}

} // namespace quillon
