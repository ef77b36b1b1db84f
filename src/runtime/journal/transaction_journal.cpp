#include "runtime/journal/transaction_journal.h"

#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/journal/journal_table.h"

namespace quillon {

namespace {

constexpr const char* kJournalName = "~qnsetup.tmp";
constexpr int kMaxFilesPerFolder = 100;
constexpr std::uint32_t kTempNumbers = 1000000;

Text JournalAbove(const Text& folder, const Text& missingFolder)
{
    return JoinPath(folder, "~qnsetup-" + missingFolder + ".tmp");
}

bool IsRoot(const Text& folder)
{
    const Text parent = ExtractDirectory(folder);
    return parent.empty() || parent == folder;
}

Text NewJournalPath(const FileSystem& files, const Text& mainFolder)
{
    if (files.DirExists(mainFolder))
        return JoinPath(mainFolder, kJournalName);
    for (Text missing = mainFolder; !IsRoot(missing); missing = ExtractDirectory(missing))
        if (const Text folder = ExtractDirectory(missing); files.DirExists(folder))
            return JournalAbove(folder, ExtractFilename(missing));
    // A missing root is a missing drive.
    throw RunError(ErrorNumber::kPathNotFound, mainFolder);
}

bool IsOnServer(const FileSystem& files, const Text& path)
{
    return path.substr(1, 1) != ":" || files.DriveType(path.substr(0, 3)) == DriveKind::Remote;
}

bool HasOwnerOfNewFile(FileSystem& files, const Target& target, const Text& path)
{
    const Text made = path + ".own";
    files.RemoveAbandoned(made);
    const auto file = files.OpenNew(made);
    if (!file)
        return false;
    const bool isSame = target.HaveSameOwner(path, made);
    file->Close();
    files.RemoveFile(made);
    return isSame;
}

} // namespace

std::vector<Text> JournalPaths(const Text& mainFolder)
{
    std::vector<Text> paths{JoinPath(mainFolder, kJournalName)};
    for (Text missing = mainFolder; !IsRoot(missing); missing = ExtractDirectory(missing))
        paths.push_back(JournalAbove(ExtractDirectory(missing), ExtractFilename(missing)));
    return paths;
}

Text LockPathOf(const Text& journalPath)
{
    return journalPath + ".lock";
}

bool IsOfOwnUser(FileSystem& files, const Target& target, const Text& path)
{
    return target.IsOfTrustedUser(path) ||
           (IsOnServer(files, path) && HasOwnerOfNewFile(files, target, path));
}

std::optional<std::string> ReadOwnJournal(FileSystem& files, const Target& target, const Text& path)
{
    const auto file = target.OpenOfTrustedUser(path);
    if (!file && IsOnServer(files, path) && HasOwnerOfNewFile(files, target, path))
        return ReadWholeFile(files, path);
    return file ? std::optional(ReadWholeFile(*file)) : std::nullopt;
}

void TransactionJournal::Begin(const Text& mainFolder, const Text& product)
{
    path_ = NewJournalPath(host_.files, mainFolder);
    lock_ = host_.files.Lock(LockPathOf(path_), LockWait::None);
    if (!lock_)
        throw RunError(ErrorNumber::kPermissionDenied, path_);
    if (!IsOfOwnUser(host_.files, target_, LockPathOf(path_)))
        throw RunError(ErrorNumber::kPathFileAccess, LockPathOf(path_));
    // A file that another user may have made is no journal of this program.
    file_ = host_.files.OpenNew(path_);
    if (!file_)
        throw RunError(ErrorNumber::kPathFileAccess, path_);
    target_.CloseToOthers(path_);
    const Text header = kTransactionJournal + Text(kLineBreak);
    file_->Write(std::as_bytes(std::span(header)));
    Note(record::Product{product});
}

void TransactionJournal::Note(JournalRecord step)
{
    steps_.push_back(std::move(step));
    const Text line = JournalLine(steps_.back()) + Text(kLineBreak);
    if (file_)
        file_->Write(std::as_bytes(std::span(line)));
}

Text TransactionJournal::TempPath(const Text& folder)
{
    TempFolder& place = tempFolders_[LowerCase(folder)];
    if (place.path.empty() || place.files == kMaxFilesPerFolder)
        MakeTempFolder(folder, place);
    return JoinPath(place.path, NumberText(++place.files));
}

// The number is random: a move that an earlier run has left to the next restart must not find
// another file under its name.
void TransactionJournal::MakeTempFolder(const Text& beside, TempFolder& folder)
{
    do
        folder = {JoinPath(beside, "~qn" + NumberText(host_.machine.Random(kTempNumbers)) + ".tmp"),
                  0};
    while (host_.files.DirExists(folder.path) || host_.files.FileExists(folder.path));
    Note(record::TempFolder{folder.path});
    if (!host_.files.DirCreate(folder.path))
        throw RunError(ErrorNumber::kPathFileAccess, folder.path);
}

void TransactionJournal::Commit()
{
    if (file_)
        file_->Flush();
    Note(record::Committed{});
    // The next run that finds this line removes what a rollback would need, so from here on there
    // is none, even if the disk fails now.
    if (file_)
        RunErrorNumber([&] { file_->Flush(); });
}

void TransactionJournal::End()
{
    file_.reset();
    if (!path_.empty() && host_.files.FileExists(path_))
        host_.files.RemoveFile(path_);
    lock_.reset();
}

void TransactionJournal::Leave()
{
    file_.reset();
    lock_.reset();
}

} // namespace quillon
