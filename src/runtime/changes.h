// Changes to the machine that can be taken back. Each one is noted in the installation's record
// before it is made, and how to take it back is kept until `Commit`, so that an installation that
// fails half-way leaves the machine as it was.
//
// Taking back writes nothing to a disk: files are put aside under another name and come back under
// their own, so that a full disk can't stop it.
#pragma once

#include "platform/host.h"
#include "runtime/install_log.h"
#include "runtime/target.h"
#include "runtime/text_log.h"

#include <functional>

namespace quillon {

class Changes {
public:
    Changes(Host& host, Target& target, InstallLog& record, TextLog& log);

    /// What is not recorded is undone after a failure, but the uninstaller does not know of it.
    enum class Recorded { Yes, No };

    /// With all missing folders above it.
    void MakeFolder(const Text& folder);
    /// A free name beside `path`, under which a file can be written before it is put in its place.
    Text StagingPath(const Text& path);
    /// Puts the finished file in the place of `path`.
    void PutFile(const Text& staged, const Text& path, Recorded recorded = Recorded::Yes);
    /// The same for a file that is in use now and free when the machine starts next.
    void PutFileAtRestart(const Text& staged, const Text& path, Recorded recorded);
    /// Keeps a second name for the file that stands at `path`, which `PutFile` is about to replace.
    void KeepBackup(const Text& path);
    void RemoveFile(const Text& path);
    /// The caller is about to write a file of this name, where none stands.
    void MakeUnrecordedFile(const Text& path);

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
    /// What can still fail before `Commit`: the moves of the next start.
    void Finish();
    /// The changes stay; what was put aside goes away.
    void Commit();
    /// False where something could not be taken back; the log tells what.
    bool Undo();

private:
    void RecordFile(const Text& path, bool existed);
    void PutAside(const Text& path);
    void Exchange(const Text& staged, const Text& path);
    void RemoveIfThere(const Text& path);
    void OnUndo(std::function<void()> step) { undo_.push_back(std::move(step)); }

    Host& host_;
    Target& target_;
    InstallLog& record_;
    TextLog& log_;
    std::vector<std::function<void()>> undo_;
    std::vector<Text> putAside_;
    std::vector<std::pair<Text, Text>> atRestart_;
};

/// A free name beside `path` for a file that stands there for a short time.
Text NameBeside(const FileSystem& files, const Text& path);

/// Takes the write protection off first, if there is one.
void RemoveEvenReadOnly(FileSystem& files, const Text& path);

} // namespace quillon
