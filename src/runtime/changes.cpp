#include "runtime/changes.h"

#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

namespace quillon {

namespace {

// The n-th name for a file that stands beside `path` for the time of the installation.
Text AsideName(const Text& path, int n)
{
    return JoinPath(ExtractDirectory(path), "~qn" + NumberText(n) + ".tmp");
}

Text BackupName(const Text& path, int n)
{
    return path + ".bak" + (n == 1 ? Text() : NumberText(n));
}

template <class NameOf>
Text FirstFreeName(const FileSystem& files, const Text& path, NameOf nameOf)
{
    int n = 1;
    while (files.FileExists(nameOf(path, n)) || files.DirExists(nameOf(path, n)))
        ++n;
    return nameOf(path, n);
}

} // namespace

Text NameBeside(const FileSystem& files, const Text& path)
{
    return FirstFreeName(files, path, AsideName);
}

void RemoveEvenReadOnly(FileSystem& files, const Text& path)
{
    if (files.Facts(path).isReadOnly)
        files.SetReadOnly(path, false);
    files.RemoveFile(path);
}

Changes::Changes(Host& host, Target& target, InstallLog& record, TextLog& log)
    : host_(host), target_(target), record_(record), log_(log)
{
}

void Changes::RemoveIfThere(const Text& path)
{
    if (host_.files.FileExists(path))
        RemoveEvenReadOnly(host_.files, path);
}

void Changes::MakeFolder(const Text& folder)
{
    if (folder.empty() || host_.files.DirExists(folder))
        return;
    // A folder that is its own parent is a root, and a missing root is a missing drive.
    const Text parent = ExtractDirectory(folder);
    if (parent.empty() || parent == folder)
        throw RunError(ErrorNumber::kPathNotFound, folder);
    MakeFolder(parent);
    record_.Add(record::Folder{folder});
    OnUndo([this, folder] {
        if (host_.files.DirExists(folder))
            host_.files.RemoveFolder(folder);
    });
    if (!host_.files.DirCreate(folder))
        throw RunError(ErrorNumber::kPathFileAccess, folder);
    log_.Line(Message::LogMakesFolder, folder);
}

Text Changes::StagingPath(const Text& path)
{
    const Text staged = NameBeside(host_.files, path);
    OnUndo([this, staged] { RemoveIfThere(staged); });
    return staged;
}

void Changes::PutAside(const Text& path)
{
    const Text aside = NameBeside(host_.files, path);
    OnUndo([this, aside, path] {
        if (host_.files.FileExists(aside))
            host_.files.Rename(aside, path);
    });
    host_.files.Rename(path, aside);
    putAside_.push_back(aside);
}

void Changes::Exchange(const Text& staged, const Text& path)
{
    if (host_.files.FileExists(path))
        PutAside(path);
    OnUndo([this, path, staged] {
        // While the finished file still has its first name, what stands here is not ours.
        if (!host_.files.FileExists(staged))
            RemoveIfThere(path);
    });
    host_.files.Rename(staged, path);
}

void Changes::RecordFile(const Text& path, bool existed)
{
    if (existed)
        record_.Add(record::Replaced{path});
    else
        record_.Add(record::File{path});
}

void Changes::PutFile(const Text& staged, const Text& path, Recorded recorded)
{
    const bool existed = host_.files.FileExists(path);
    if (recorded == Recorded::Yes)
        RecordFile(path, existed);
    Exchange(staged, path);
}

void Changes::MakeUnrecordedFile(const Text& path)
{
    OnUndo([this, path] { RemoveIfThere(path); });
}

void Changes::PutFileAtRestart(const Text& staged, const Text& path, Recorded recorded)
{
    if (recorded == Recorded::Yes)
        RecordFile(path, true);
    atRestart_.emplace_back(staged, path);
}

void Changes::KeepBackup(const Text& path)
{
    const Text backup = FirstFreeName(host_.files, path, BackupName);
    record_.Add(record::Backup{path, backup});
    OnUndo([this, backup] { RemoveIfThere(backup); });
    host_.files.CopyContent(path, backup);
    log_.Line(Message::LogBacksUp, path, backup);
}

void Changes::RemoveFile(const Text& path)
{
    PutAside(path);
}

void Changes::MakeKey(const RegistryKey& key)
{
    if (target_.KeyExists(key))
        return;
    if (const Text parent = ExtractDirectory(key.subKey); !parent.empty())
        MakeKey({key.root, parent});
    record_.Add(record::Key{key});
    OnUndo([this, key] {
        if (target_.KeyExists(key))
            target_.RemoveKey(key);
    });
    target_.MakeKey(key);
}

void Changes::WriteValue(const RegistryKey& key, const Text& name, const RegistryData& data,
                         Recorded recorded)
{
    MakeKey(key);
    const auto former = target_.ReadValue(key, name);
    if (recorded == Recorded::Yes)
        record_.Add(record::Value{key, name, data, former});
    OnUndo([this, key, name, former] {
        if (former)
            target_.WriteValue(key, name, *former);
        else if (target_.ReadValue(key, name))
            target_.RemoveValue(key, name);
    });
    target_.WriteValue(key, name, data);
}

void Changes::RemoveValue(const RegistryKey& key, const Text& name)
{
    const auto former = target_.ReadValue(key, name);
    if (!former)
        return;
    OnUndo([this, key, name, former] { target_.WriteValue(key, name, *former); });
    target_.RemoveValue(key, name);
}

void Changes::RemoveKeyWithAllBelow(const RegistryKey& key)
{
    if (!target_.KeyExists(key))
        return;
    for (const Text& name : target_.SubKeys(key))
        RemoveKeyWithAllBelow({key.root, key.subKey + "\\" + name});
    for (const Text& name : target_.ValueNames(key))
        RemoveValue(key, name);
    OnUndo([this, key] { target_.MakeKey(key); });
    target_.RemoveKey(key);
}

void Changes::MakeShortcut(const Text& path, const Shortcut& shortcut)
{
    MakeFolder(ExtractDirectory(path));
    RecordFile(path, host_.files.FileExists(path));
    if (host_.files.FileExists(path))
        PutAside(path);
    OnUndo([this, path] { RemoveIfThere(path); });
    target_.MakeShortcut(path, shortcut);
    log_.Line(Message::LogMakesShortcut, path);
}

Registration Changes::RegisterServer(const Text& path)
{
    record_.Add(record::Registered{path});
    OnUndo([this, path] { target_.RegisterServer(path, false); });
    return target_.RegisterServer(path, true);
}

void Changes::AnnounceFont(const Text& path)
{
    record_.Add(record::Font{path});
    OnUndo([this, path] { target_.AnnounceFont(path, false); });
    target_.AnnounceFont(path, true);
}

void Changes::Finish()
{
    for (const auto& [from, to] : atRestart_)
        target_.MoveAtRestart(from, to);
}

void Changes::Commit()
{
    undo_.clear();
    for (const Text& aside : putAside_) {
        if (RunErrorNumber([&] { RemoveIfThere(aside); }) == ErrorNumber::kNone)
            continue;
        // A running program still holds the file that it was started from.
        std::optional<RunError> failure;
        RunErrorNumber([&] { target_.MoveAtRestart(aside, ""); }, failure);
        if (failure)
            log_.CannotRemove(aside, *failure);
    }
    putAside_.clear();
}

bool Changes::Undo()
{
    bool whole = true;
    for (; !undo_.empty(); undo_.pop_back()) {
        try {
            undo_.back()();
        } catch (const std::exception& error) { // whatever it is, the steps before it have to go on
            whole = false;
            log_.CannotUndo(error);
        }
    }
    putAside_.clear();
    atRestart_.clear();
    return whole;
}

} // namespace quillon
