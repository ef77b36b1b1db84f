// A machine in memory: its disks are maps, its clock is set by the test, and it fails when the test
// wants it.
#pragma once

#include "platform/host.h"

#include <deque>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace quillon::test {

/// Paths are compared without regard to case, as on Windows, and listed as they were first written.
class MemoryFiles : public FileSystem {
public:
    struct Node {
        Text path;                          // as first written
        std::shared_ptr<std::string> bytes; // null on a folder
        FileStatus status;
        bool unreadable = false;
        bool isFlushed = false; // to the disk, all that has been written
        Text rights;            // who may do what, as the test calls it; empty: as in any folder
    };

    /// A file with all folders above it.
    void Put(const Text& path, std::string bytes, LocalTime modified = {2004, 2, 29, 12, 30, 0});
    void PutFolder(const Text& path);
    std::string Get(const Text& path) const;
    Node& At(const Text& path);

    /// The n-th write from now on (1 is the next one) fails with this number, and all after it. To
    /// flush a file and to put it in the place of another are writes too.
    void FailFromWrite(int n, int errorNumber);
    /// Opening this file for output fails with this number.
    void RefuseOutput(const Text& path, int errorNumber);

    bool FileExists(const Text& path) const override;
    bool DirExists(const Text& path) const override;
    FileStatus Status(const Text& path) const override;
    std::vector<FolderEntry> List(const Text& folder) const override;
    std::unique_ptr<InputFile> OpenInput(const Text& path) const override;
    std::unique_ptr<OutputFile> OpenOutput(const Text& path) override;
    void RemoveAbandoned(const Text& path) override;
    std::unique_ptr<FileLock> Lock(const Text& path, LockWait wait) override;
    bool DirCreate(const Text& path) override;
    void CopyContent(const Text& from, const Text& to) override;
    void RemoveFile(const Text& path) override;
    void RemoveFolder(const Text& path) override;
    void Rename(const Text& from, const Text& to) override;
    void Replace(const Text& from, const Text& to) override;
    void SetModified(const Text& path, const LocalTime& time) override;
    void SetReadOnly(const Text& path, bool readOnly) override;
    std::uint64_t FreeSpace(const Text& folder) const override;
    DriveKind DriveType(const Text& root) const override;
    Text GetVolumeName(const Text& root) const override;
    Text ShortPath(const Text& path) const override { return path; }

    std::map<Text, Node> nodes;               // by lower-cased path
    std::map<Text, std::uint64_t> capacities; // of whole drives, by lower-cased root such as "a:\"
    std::map<Text, DriveKind> driveKinds;     // by lower-cased root; fixed when not named
    bool refuseFolders = false;
    std::set<Text> locked; // lock files that a program has, by lower-cased path

private:
    friend class MemoryOutput;

    const Node& Existing(const Text& path) const;
    void BeforeWrite(const Text& path, std::uint64_t grows);
    std::uint64_t Used(const Text& root) const;

    int writesUntilFailure_ = std::numeric_limits<int>::max();
    int failureNumber_ = 0;
    std::map<Text, int> refused_;
};

class FixedMachine : public Machine {
public:
    Text GetWindowsDir() const override { return "C:\\WINDOWS"; }
    Text GetSystemDir() const override { return "C:\\WINDOWS\\SYSTEM32"; }
    Text GetProgramFilesDir() const override { return "C:\\Program"; }
    Text GetMyDocumentsDir() const override { return "C:\\Mina dokument"; }
    Text GetSysAppDataDirectory() const override { return "C:\\Data\\Roaming"; }
    Text GetSysLocalAppDataDirectory() const override { return "C:\\Data\\Local"; }
    Text GetSysTemplatesDirectory() const override { return "C:\\Data\\Mallar"; }
    Text GetTempDir() const override { return "C:\\TEMP"; }
    Text GetSettingsDir() const override { return settingsDir; }
    std::optional<Text> ReadRegistryValue(RegistryRoot root, const Text& subKey,
                                          const Text& valueName) const override;
    RegisteredOwner GetWindowsRegisteredOwner() const override { return owner; }
    bool IsWindowsXP() const override { return windowsXP; }
    bool GetDisplayCharSize() const override { return false; }
    char DecimalSign() const override { return decimalSign; }
    LocalTime Now() const override { return now; }
    std::uint32_t Random(std::uint32_t below) override;
    void StartProgram(const Text& program, const Text& arguments) override;
    void OpenDocument(const Text& path) override;
    void EditTextFile(const Text& path) override;

    using RegistryKey = std::tuple<RegistryRoot, Text, Text>;
    std::map<RegistryKey, Text> registry;
    RegisteredOwner owner{"Ulla Ek", "Firma AB"};
    bool windowsXP = false;
    char decimalSign = ',';
    LocalTime now{2004, 3, 1, 14, 25, 36};
    std::uint32_t nextRandom = 0; // counts up by one, modulo what is asked for
    Text settingsDir = "C:\\Data\\Roaming\\Quillon";
    std::vector<std::pair<Text, Text>> started;
    int startFailure = 0;
};

struct MemoryHost {
    MemoryFiles files;
    FixedMachine machine;
    Host host{files, machine};
};

} // namespace quillon::test
