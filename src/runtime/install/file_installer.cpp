#include "runtime/install/file_installer.h"

#include "formats/digest_text.h"
#include "helpers/version_resource.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/install/install_order.h"
#include "runtime/shared_files.h"

namespace quillon {

namespace {

// Where a program runs from a share or an old disk, its file is refused as one without rights is.
bool MayBeInUse(const RunError& error)
{
    return error.Number() == ErrorNumber::kFileInUse ||
           error.Number() == ErrorNumber::kPermissionDenied ||
           error.Number() == ErrorNumber::kPathFileAccess;
}

} // namespace

Text VersionOfFile(const FileSystem& files, const Text& path)
{
    const auto file = files.OpenInput(path);
    return GetFileVersionData([&](std::uint64_t position, std::span<std::byte> buffer) {
               file->Seek(position);
               std::size_t total = 0;
               for (std::size_t got = 1; got > 0 && total < buffer.size(); total += got)
                   got = file->Read(buffer.subspan(total));
               return total;
           })
        .FileVersion;
}

FileInstaller::FileInstaller(const InstallInput& input, InstallTransaction& transaction,
                             InstallJournal& journal)
    : input_(input), transaction_(transaction), journal_(journal)
{
}

void FileInstaller::InstallAll()
{
    for (const PlannedFile& file : input_.plan.files)
        total_ += file.row->size;
    const std::vector<PlannedFile>& files = input_.plan.files;
    transaction_.ExpectFiles(files.size());
    std::vector<Outcome> outcomes(files.size());
    for (const std::size_t number : InstallOrder(files, input_.package))
        outcomes[number] = InstallOne(files[number]);
    for (std::size_t number = 0; number < files.size(); ++number)
        NoteWhatFollows(files[number], outcomes[number]);
}

FileInstaller::Outcome FileInstaller::InstallOne(const PlannedFile& file)
{
    const Text& options = file.row->copyOptions;
    if (!input_.package.HasBytes(*file.row)) {
        input_.log.Skipped(file.path, {Message::SkipNoSource});
        return Outcome::Kept;
    }
    transaction_.MakeFolder(ExtractDirectory(file.path));
    const auto existing = StatusAt(file.path);
    // A version can only be read from a file on disk, so such a file is written in any case.
    const bool decidesLate = existing && HasOption(options, CopyLetter::kVersionCheck);
    bool wanted = decidesLate || !existing || IsWanted(file, *existing, {});
    Text staged;
    if (wanted) {
        staged = Stage(file);
        wanted = !decidesLate || IsWanted(file, *existing, staged);
    }
    const bool atRestart = wanted && !Put(file, staged, existing.has_value());
    if (wanted || journal_.Has<record::File>(file.path) ||
        journal_.Has<record::Replaced>(file.path))
        installed_ += file.row->size;
    if (!wanted && !staged.empty())
        input_.host.files.RemoveFile(staged);
    if (HasOption(options, CopyLetter::kShared) && !HasOption(options, CopyLetter::kNeverUninstall))
        CountSharedFile(file, existing.has_value());
    if (!wanted) {
        transaction_.KeepFile(file.path);
        return Outcome::Kept;
    }
    NoteContent(file);
    return atRestart ? Outcome::AtRestart : Outcome::Written;
}

// Both in one question: where a name is new, some file systems read the whole folder to answer.
std::optional<FileStatus> FileInstaller::StatusAt(const Text& path) const
{
    std::optional<FileStatus> status;
    RunErrorNumber([&] { status = input_.host.files.Status(path); });
    if (status && status->isFolder)
        throw RunError(ErrorNumber::kPathFileAccess, path);
    return status;
}

bool FileInstaller::IsWanted(const PlannedFile& file, const FileStatus& status, const Text& staged)
{
    const FileSystem& files = input_.host.files;
    ComparedFile existing{status.modified, {}, status.isReadOnly};
    ComparedFile ours{input_.package.Modified(*file.row), {}, false};
    if (!staged.empty()) {
        existing.version = VersionOfFile(files, file.path);
        ours.version = VersionOfFile(files, staged);
    }
    CopyDecision decision = DecideCopy(file.row->copyOptions, existing, ours);
    if (decision.verdict == CopyVerdict::Ask)
        decision = AskWhetherToReplace(file.path);
    if (decision.verdict == CopyVerdict::Keep)
        input_.log.Skipped(file.path, *decision.reason);
    return decision.verdict == CopyVerdict::Copy;
}

CopyDecision FileInstaller::AskWhetherToReplace(const Text& path)
{
    if (input_.silent)
        return {CopyVerdict::Keep, Reason{Message::SkipNobodyToAsk}};
    const bool replace =
        input_.ask.YesNo(input_.setup.project.ProjectName.ProjectName,
                         input_.texts(Message::FileExists, path), Ask::Stops::OnNo);
    return {replace ? CopyVerdict::Copy : CopyVerdict::Keep, Reason{Message::SkipUserKeepsFile}};
}

Text FileInstaller::Stage(const PlannedFile& file)
{
    const Text staged = transaction_.StagingPath(file.path);
    const auto output = input_.host.files.OpenOutput(staged);
    BackgroundWriter::File writing(writer_, *output);
    input_.package.Extract(*file.row, [&](std::span<const std::byte> bytes) {
        writing.Add(bytes);
        done_ += bytes.size();
        input_.ask.ShowProgress(done_, total_);
        input_.ask.ProcessEvents();
    });
    digest_ = writing.Finish();
    input_.package.CheckDigest(*file.row, digest_);
    output->Close();
    input_.host.files.SetModified(staged, input_.package.Modified(*file.row));
    return staged;
}

// False where the file takes its place when the machine starts next.
bool FileInstaller::Put(const PlannedFile& file, const Text& staged, bool replaces)
{
    const Text& options = file.row->copyOptions;
    const auto recorded = HasOption(options, CopyLetter::kNeverUninstall)
                              ? InstallTransaction::Recorded::No
                              : InstallTransaction::Recorded::Yes;
    const InstallTransaction::NewFile placed{staged, file.path, replaces, recorded};
    if (replaces && HasOption(options, CopyLetter::kBackup))
        transaction_.KeepBackup(file.path);
    if (HasOption(options, CopyLetter::kSetWriteProtection))
        input_.host.files.SetReadOnly(staged, true);
    try {
        transaction_.PutFile(placed);
        input_.log.Line(Message::LogCopies, file.path);
        return true;
    } catch (const RunError& error) {
        if (!MayBeInUse(error) || !HasOption(options, CopyLetter::kActiveFile))
            throw;
        transaction_.PutFileAtRestart(placed);
        input_.log.Line(Message::LogReplacesAtRestart, file.path);
        return false;
    }
}

// A file that was there before, without a count, has a user already.
void FileInstaller::CountSharedFile(const PlannedFile& file, bool existed)
{
    if (journal_.Has<record::Shared>(file.path))
        return;
    const std::uint32_t before = CountOfUsers(input_.target, file.path).value_or(existed ? 1 : 0);
    // The key first, since it can be removed only after the count in it.
    transaction_.MakeKey(SharedFilesKey());
    journal_.Add(record::Shared{file.path});
    transaction_.WriteValue(SharedFilesKey(), file.path, NumberData(before + 1),
                            InstallTransaction::Recorded::No);
}

void FileInstaller::NoteContent(const PlannedFile& file)
{
    if (input_.plan.hasUninstaller &&
        !HasOption(file.row->copyOptions, CopyLetter::kNeverUninstall))
        journal_.Add(record::Content{file.path, file.row->size, DigestText(digest_)});
}

void FileInstaller::NoteWhatFollows(const PlannedFile& file, Outcome outcome)
{
    if (outcome == Outcome::Kept)
        return;
    const Text& options = file.row->copyOptions;
    if (HasOption(options, CopyLetter::kRegister))
        (outcome == Outcome::AtRestart ? toRegisterAtRestart_ : toRegister_).push_back(file.path);
    if (HasOption(options, CopyLetter::kFont))
        fonts_.push_back(file);
}

} // namespace quillon
