// A small product as a package in memory, a machine to install it on, and the files of that machine
// before. The package's archive is a list of texts; one can be damaged.
#pragma once

#include "runtime/setup_program.h"
#include "runtime/silent_ask.h"
#include "runtime/support/memory_target.h"
#include "runtime/uninstall/uninstall.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gtest/gtest.h>

#include <map>

namespace quillon::test {

/// The folder that the product goes to.
inline const Text kMain = "C:\\Program\\Exempel";

/// Files that pass everything on, and fail at one change where the test wants it.
class FailingFiles : public FileSystem {
public:
    explicit FailingFiles(MemoryFiles& files) : files_(files) {}

    /// Called before each change but the text log's, which may fail by itself; may throw.
    std::function<void()> beforeChange = [] {};

    bool FileExists(const Text& path) const override
    {
        ++questions;
        return files_.FileExists(path);
    }
    bool DirExists(const Text& path) const override
    {
        ++questions;
        return files_.DirExists(path);
    }
    FileStatus Status(const Text& path) const override
    {
        ++questions;
        return files_.Status(path);
    }
    std::vector<FolderEntry> List(const Text& folder) const override
    {
        ++questions;
        return files_.List(folder);
    }
    std::unique_ptr<FileLock> Lock(const Text& path, LockWait wait) override
    {
        return locked.count(path) > 0 ? nullptr : files_.Lock(path, wait);
    }
    std::unique_ptr<InputFile> OpenInput(const Text& path) const override
    {
        return files_.OpenInput(path);
    }
    std::unique_ptr<OutputFile> OpenOutput(const Text& path) override;
    bool DirCreate(const Text& path) override
    {
        BeforeChange(path);
        return files_.DirCreate(path);
    }
    void CopyContent(const Text& from, const Text& to) override
    {
        BeforeChange(to);
        files_.CopyContent(from, to);
    }
    void RemoveFile(const Text& path) override;
    void RemoveFolder(const Text& path) override
    {
        BeforeChange(path);
        files_.RemoveFolder(path);
    }
    void Rename(const Text& from, const Text& to) override;
    void SetModified(const Text& path, const LocalTime& time) override
    {
        BeforeChange(path);
        files_.SetModified(path, time);
    }
    void SetReadOnly(const Text& path, bool readOnly) override
    {
        BeforeChange(path);
        files_.SetReadOnly(path, readOnly);
    }
    std::uint64_t FreeSpace(const Text& folder) const override { return files_.FreeSpace(folder); }
    DriveKind DriveType(const Text& root) const override { return files_.DriveType(root); }
    Text GetVolumeName(const Text& root) const override { return files_.GetVolumeName(root); }
    Text ShortPath(const Text& path) const override { return path; }

    /// Files that a program holds open: they can be neither moved nor removed.
    std::set<Text> inUse;
    /// Files of running programs: they can be moved, but not removed.
    std::set<Text> running;
    /// Files that others alone may move.
    std::set<Text> withoutRights;
    /// Locks that another program has.
    std::set<Text> locked;
    /// What has been asked for so far.
    mutable int questions = 0;

    void BeforeChange(const Text& path);

private:
    MemoryFiles& files_;
};

class MemoryContainer : public Container {
public:
    struct Source {
        Text comment;
        std::string bytes;
        LocalTime modified;
    };

    explicit MemoryContainer(std::vector<Source> sources, int damagedEntry);

    const std::vector<ZipEntry>& Entries() const override { return entries_; }
    void Extract(const ZipEntry& entry, const Text& password, const ZipReader::Sink& sink) override;

private:
    std::vector<Source> sources_;
    std::vector<ZipEntry> entries_;
    int damagedEntry_;
};

/// What a test compares: files with bytes, dates and protection; folders; the whole registry.
struct MachineState {
    std::map<Text, Text> files;
    std::map<std::pair<RegistryRoot, Text>, MemoryTarget::KeyNode> registry;
    std::set<Text> registered;
    std::set<Text> fonts;

    bool operator==(const MachineState&) const = default;
};

class SetupFixture : public testing::Test {
protected:
    SetupFixture();

    /// A row with its bytes, dated `modified`; FILELIST.INF and the container get it too.
    InstallRow& AddFile(const Text& name, const Text& destination, const std::string& bytes,
                        const Text& options = "D", LocalTime modified = {2004, 1, 2, 3, 4, 6});
    InstallRow& AddFolder(const Text& destination);

    ExitCode Install(const Text& switches = "/S");
    ExitCode UninstallProduct(const Text& log = "C:\\Program\\Exempel\\QNXUNIN.LOG");
    /// Makes the record one of an older setup, which says of no file what it held.
    void ForgetRecordedContents();
    MachineState State() const;
    /// The text of the log that Install writes.
    Text Log() const;

    MemoryHost memory;
    FailingFiles files{memory.files};
    Host host{files, memory.machine};
    MemoryTarget target{&files};
    LoadedPackage package;
    Project& project = package.setup.project;
    std::vector<MemoryContainer::Source> sources;
    int damagedEntry = -1;
    bool isContainerMissing = false;
    std::string openedContainer; // its bytes
    Ask* ask = nullptr;          // null: silent
    PageView* pages = nullptr;
    BackgroundSound* sound = nullptr;
    bool otherSetupRuns = false;
    FileUsers* users = nullptr;
    bool (*mayRestart)() = nullptr;
    std::unique_ptr<InputFile> (*openHeld)(const Text& path) = nullptr;
    bool startsMachineAnew = false; // what Install has ended with beside its code,
    LogFiles logsWritten;           // and the logs of that run
    std::vector<LeftBehind> left;   // what UninstallProduct has listed as still there
    std::vector<Text> started;      // a file, and its arguments after a blank
    int codeOfStarted = 0;          // of a program that is waited for
};

} // namespace quillon::test
