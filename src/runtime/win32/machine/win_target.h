// The Windows machine that a product is installed on.
#pragma once

#include "runtime/target.h"

namespace quillon {

class WinTarget : public Target {
public:
    /// Registrations run in the helper program of this path where there is one, else in the running
    /// program, started once more.
    explicit WinTarget(Text registryHelper = {}) : registryHelper_(std::move(registryHelper)) {}

    SystemKind System() const override;
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
    bool IsOfTrustedUser(const Text& path) const override;
    std::unique_ptr<InputFile> OpenOfTrustedUser(const Text& path) const override;
    bool IsLink(const Text& folder) const override;
    bool IsSameFile(const Text& path, const Text& other) const override;
    std::shared_ptr<void> HoldShutdown(const Text& reason) override;

private:
    Text registryHelper_;
};

} // namespace quillon
