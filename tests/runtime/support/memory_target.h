// A Windows machine in memory, for what is not a file: its registry is a map, shortcuts are small
// files, and every change can be made to fail.
#pragma once

#include "runtime/target.h"
#include "support/memory_host.h"

#include <functional>
#include <map>
#include <set>
#include <vector>

namespace quillon::test {

class MemoryTarget : public Target {
public:
    struct KeyNode {
        Text subKey;                                          // as first written
        std::map<Text, std::pair<Text, RegistryData>> values; // by lower-cased name
        bool operator==(const KeyNode&) const = default;
    };

    /// Shortcuts are written as files here.
    explicit MemoryTarget(FileSystem* files = nullptr) : files_(files) {}

    SystemKind System() const override { return system; }
    Text Folder(TargetFolder folder) const override;
    bool KeyExists(const RegistryKey& key) const override;
    std::vector<Text> SubKeys(const RegistryKey& key) const override;
    std::vector<Text> ValueNames(const RegistryKey& key) const override;
    std::optional<RegistryData> ReadValue(const RegistryKey& key, const Text& name) const override;
    void MakeKey(const RegistryKey& key) override;
    void WriteValue(const RegistryKey& key, const Text& name, const RegistryData& data) override;
    void RemoveValue(const RegistryKey& key, const Text& name) override;
    void RemoveKey(const RegistryKey& key) override;
    void MakeShortcut(const Text& path, const Shortcut& shortcut) override;
    std::optional<Shortcut> ReadShortcut(const Text& path) const override;
    Registration RegisterServer(const Text& path, bool on) override;
    void AnnounceFont(const Text& path, bool on) override;
    void MoveAtRestart(const Text& from, const Text& to) override;
    int RunProgram(const ProgramRun& run) override;
    void CloseToOthers(const Text& path) override;
    void CopyRights(const Text& from, const Text& to) override;
    bool HaveSameOwner(const Text& path, const Text& own) const override;
    bool IsOfTrustedUser(const Text& path) const override { return ofOthers.count(path) == 0; }
    std::unique_ptr<InputFile> OpenOfTrustedUser(const Text& path) const override
    {
        return IsOfTrustedUser(path) ? files_->OpenInput(path) : nullptr;
    }
    bool IsLink(const Text& folder) const override { return links.count(LowerCase(folder)) > 0; }
    bool IsSameFile(const Text& path, const Text& other) const override;
    std::shared_ptr<void> HoldShutdown(const Text& reason) override;

    /// A move as it stands in the registry.
    std::string RestartEntry(const Text& from, const Text& to) const;

    /// The value's text, "<none>" where there is none.
    Text TextAt(const RegistryKey& key, const Text& name) const;

    /// Called before each change; may throw.
    std::function<void()> beforeChange = [] {};

    SystemKind system = SystemKind::Win2000;
    std::map<std::pair<RegistryRoot, Text>, KeyNode> keys;
    std::set<Text> registered;
    std::map<Text, Registration> registrationAnswers; // Done where not named
    std::set<Text> fonts;
    std::vector<std::pair<Text, Text>> movesAtRestart;
    bool listsMovesAtRestart = false; // in its registry as well, as Windows does
    Text restartMark; // before each path there: nothing, or '*' and a number in newer systems
    bool hasCommonFolders = true;
    std::vector<Text> programsRun;    // a program, its arguments and " (hidden)" after it
    std::map<Text, int> programCodes; // 0 where not named
    /// How rights and attributes are copied, where the test's machine has any.
    std::function<void(const Text& from, const Text& to)> copyRights = [](auto&, auto&) {};
    /// What a program does while it runs; may throw.
    std::function<void(const ProgramRun&)> onProgram = [](const ProgramRun&) {};
    std::set<Text> closedToOthers;
    std::set<Text> ofOthers; // files that somebody else made
    std::set<Text> links;    // in lower case
    Text otherNameOfMain;    // a second path of the folder `main`
    Text main;
    std::vector<Text> shutdownReasons; // of all holds so far
    int shutdownHolds = 0;             // that are alive

private:
    void ListMoveAtRestart(const Text& from, const Text& to);

    FileSystem* files_;
};

} // namespace quillon::test
