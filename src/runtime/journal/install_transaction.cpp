#include "runtime/journal/install_transaction.h"

#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

namespace quillon {

namespace {

// The first free name for a second copy of the file; there are hardly ever more than a few.
Text BackupPath(const FileSystem& files, const Text& path)
{
    Text backup = path + ".bak";
    for (int n = 2; files.FileExists(backup) || files.DirExists(backup); ++n)
        backup = path + ".bak" + NumberText(n);
    return backup;
}

} // namespace

InstallTransaction::InstallTransaction(Host& host, Target& target, InstallJournal& installJournal,
                                       ActionLog& log)
    : host_(host), target_(target), installJournal_(installJournal), log_(log),
      journal_(host, target)
{
}

void InstallTransaction::Begin(const Text& mainFolder, const Text& product)
{
    journal_.Begin(mainFolder, product);
}

void InstallTransaction::ExpectFiles(std::size_t count)
{
    constexpr std::size_t kStepsBeside = 1024; // folders, values of the registry, shortcuts
    journal_.Expect(count + kStepsBeside);
}

void InstallTransaction::MakeFolder(const Text& folder)
{
    if (folder.empty() || host_.files.DirExists(folder))
        return;
    // A folder that is its own parent is a root, and a missing root is a missing drive.
    const Text parent = ExtractDirectory(folder);
    if (parent.empty() || parent == folder)
        throw RunError(ErrorNumber::kPathNotFound, folder);
    MakeFolder(parent);
    installJournal_.Add(record::Folder{folder});
    journal_.Note(record::Folder{folder});
    if (!host_.files.DirCreate(folder))
        throw RunError(ErrorNumber::kPathFileAccess, folder);
    log_.Line(Message::LogMakesFolder, folder);
}

Text InstallTransaction::StagingPath(const Text& path)
{
    return journal_.TempPath(ExtractDirectory(path));
}

// A failure names the place, not the temporary file.
void InstallTransaction::Move(const Text& from, const Text& to, const Text& place)
{
    std::optional<RunError> failure;
    if (RunErrorNumber([&] { host_.files.Rename(from, to); }, failure) != ErrorNumber::kNone)
        throw RunError(failure->Number(), place);
}

void InstallTransaction::MoveAside(const Text& path)
{
    // When undoing, this comes after the file itself.
    if (installJournal_.Has<record::Registered>(path))
        journal_.Note(record::RegisteredBefore{path});
    if (installJournal_.Has<record::Font>(path))
        journal_.Note(record::AnnouncedBefore{path});
    const Text aside = StagingPath(path);
    journal_.Note(record::MovedAside{path, aside});
    Move(path, aside, path);
    movedAside_[LowerCase(path)] = aside;
}

// The new file could not take its place, and the installation may go on without it.
void InstallTransaction::MoveBack(const Text& path)
{
    const auto aside = movedAside_.find(LowerCase(path));
    if (RunErrorNumber([&] { host_.files.Rename(aside->second, path); }) != ErrorNumber::kNone)
        throw RunError(ErrorNumber::kDeviceIo, path);
    movedAside_.erase(aside);
}

// From now on the file at the place is the product's. Where a former file was moved aside in the
// step just before, undoing that step is enough; where steps lie between the two, the new file has
// to be removed first.
void InstallTransaction::NoteNewFile(const NewFile& file)
{
    const auto aside = movedAside_.find(LowerCase(file.path));
    if (aside == movedAside_.end())
        journal_.Note(record::File{file.path});
    else if (!file.replaces)
        journal_.Note(record::InsteadOf{file.path, aside->second});
}

void InstallTransaction::RecordFile(const Text& path, bool existed)
{
    if (existed)
        installJournal_.Add(record::Replaced{path});
    else
        installJournal_.Add(record::File{path});
}

void InstallTransaction::PutFile(const NewFile& file)
{
    if (file.replaces && file.keepsRights)
        target_.CopyRights(file.path, file.staged);
    if (file.replaces)
        MoveAside(file.path);
    NoteNewFile(file);
    try {
        Move(file.staged, file.path, file.path);
    } catch (const RunError&) {
        if (file.replaces)
            MoveBack(file.path);
        throw;
    }
    if (file.recorded == Recorded::Yes)
        RecordFile(file.path, file.replaces);
}

void InstallTransaction::PutFileAtRestart(const NewFile& file)
{
    const record::AtRestart move{file.staged, file.path};
    if (file.recorded == Recorded::Yes) {
        RecordFile(file.path, true);
        installJournal_.Add(move);
    }
    journal_.Note(move);
    atRestart_.push_back(move);
}

void InstallTransaction::KeepBackup(const Text& path)
{
    const Text backup = BackupPath(host_.files, path);
    installJournal_.Add(record::Backup{path, backup});
    journal_.Note(record::File{backup});
    host_.files.CopyContent(path, backup);
    log_.Line(Message::LogBacksUp, path, backup);
}

void InstallTransaction::KeepFile(const Text& path)
{
    kept_.insert(LowerCase(path));
}

void InstallTransaction::RemoveFile(const Text& path)
{
    MoveAside(path);
}

void InstallTransaction::RemoveFolderAtEnd(const Text& folder)
{
    journal_.Note(record::LeavingFolder{folder});
}

void InstallTransaction::MakeKey(const RegistryKey& key)
{
    if (target_.KeyExists(key))
        return;
    if (const Text parent = ExtractDirectory(key.subKey); !parent.empty())
        MakeKey({key.root, parent});
    installJournal_.Add(record::Key{key});
    journal_.Note(record::Key{key});
    target_.MakeKey(key);
}

void InstallTransaction::WriteValue(const RegistryKey& key, const Text& name,
                                    const RegistryData& data, Recorded recorded)
{
    MakeKey(key);
    const auto former = target_.ReadValue(key, name);
    if (recorded == Recorded::Yes)
        installJournal_.Add(record::Value{key, name, data, former});
    journal_.Note(record::FormerValue{key, name, former});
    journal_.Note(record::WrittenValue{key, name, data});
    target_.WriteValue(key, name, data);
    log_.Line(Message::LogWritesRegistry, ValueText(key, name));
}

bool InstallTransaction::TakeValueAway(const RegistryKey& key, const Text& name)
{
    const auto former = target_.ReadValue(key, name);
    if (!former)
        return false;
    journal_.Note(record::FormerValue{key, name, former});
    journal_.Note(record::WrittenValue{key, name, std::nullopt});
    target_.RemoveValue(key, name);
    return true;
}

void InstallTransaction::RemoveValue(const RegistryKey& key, const Text& name)
{
    if (TakeValueAway(key, name))
        log_.Line(Message::LogRemovesRegistry, ValueText(key, name));
}

void InstallTransaction::RemoveKeyWithAllBelow(const RegistryKey& key)
{
    if (!target_.KeyExists(key))
        return;
    TakeKeyAway(key);
    log_.Line(Message::LogRemovesRegistry, KeyText(key));
}

void InstallTransaction::TakeKeyAway(const RegistryKey& key)
{
    for (const Text& name : target_.SubKeys(key))
        TakeKeyAway({key.root, key.subKey + "\\" + name});
    for (const Text& name : target_.ValueNames(key))
        TakeValueAway(key, name);
    journal_.Note(record::RemovedKey{key});
    target_.RemoveKey(key);
}

void InstallTransaction::MakeShortcut(const Text& path, const Shortcut& shortcut)
{
    MakeFolder(ExtractDirectory(path));
    const bool existed = host_.files.FileExists(path);
    RecordFile(path, existed);
    if (existed)
        MoveAside(path);
    NoteNewFile({{}, path, existed});
    target_.MakeShortcut(path, shortcut);
    log_.Line(Message::LogMakesShortcut, path);
}

Registration InstallTransaction::RegisterServer(const Text& path)
{
    installJournal_.Add(record::Registered{path});
    journal_.Note(record::Registered{path});
    return target_.RegisterServer(path, true);
}

void InstallTransaction::AnnounceFont(const Text& path)
{
    installJournal_.Add(record::Font{path});
    journal_.Note(record::Font{path});
    target_.AnnounceFont(path, true);
}

void InstallTransaction::Commit()
{
    for (const record::AtRestart& move : atRestart_)
        target_.MoveAtRestart(move.from, move.to);
    journal_.Commit();
}

void InstallTransaction::CleanUp()
{
    quillon::CleanUp({host_, target_, log_}, journal_.Steps(), kept_);
    std::optional<RunError> failure;
    RunErrorNumber([&] { journal_.End(); }, failure);
    if (failure)
        log_.CannotRemove(failure->Path(), *failure);
}

bool InstallTransaction::Undo()
{
    bool isWhole = false;
    const auto undo = [&] {
        isWhole = quillon::Undo({host_, target_, log_}, journal_.Steps(), [&] { journal_.End(); });
    };
    if (RunErrorNumber(undo) == ErrorNumber::kNone && isWhole)
        return true;
    journal_.Leave();
    return false;
}

} // namespace quillon
