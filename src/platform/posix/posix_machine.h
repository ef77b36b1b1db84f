// A POSIX system as the machine: the Windows folders of drive C:, a registry out of files, the
// user's own clock, locale and programs.
#pragma once

#include "platform/machine.h"
#include "platform/posix/drive_map.h"
#include "platform/posix/machine_settings.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/registry_files.h"

namespace quillon {

class PosixMachine : public Machine {
public:
    /// Makes the folders of drive C: that every machine has; where that fails, they are missing.
    PosixMachine(const MachineSettings& settings, const DriveMap& drives, PosixFiles& files,
                 RegistryFiles registry);

    Text GetWindowsDir() const override;
    Text GetSystemDir() const override;
    Text GetProgramFilesDir() const override;
    Text GetMyDocumentsDir() const override;
    Text GetSysAppDataDirectory() const override;
    Text GetSysLocalAppDataDirectory() const override;
    Text GetSysTemplatesDirectory() const override;
    Text GetTempDir() const override;
    Text GetSettingsDir() const override;

    std::optional<Text> ReadRegistryValue(RegistryRoot root, const Text& subKey,
                                          const Text& valueName) const override;
    RegisteredOwner GetWindowsRegisteredOwner() const override;

    bool IsWindowsXP() const override { return false; }
    bool GetDisplayCharSize() const override { return false; }
    char DecimalSign() const override;

    LocalTime Now() const override;
    std::uint32_t Random(std::uint32_t below) override;

    void StartProgram(const Text& program, const Text& arguments) override;
    void OpenDocument(const Text& path) override;
    void EditTextFile(const Text& path) override;

private:
    /// The path where it is a folder, else empty.
    Text IfExists(const Text& path) const;
    Text UserFolder() const;
    std::string Existing(const Text& path) const;

    const DriveMap& drives_;
    const PosixFiles& files_;
    RegistryFiles registry_;
    std::string tempFolder_;
    std::string settingsFolder_;
    Text user_;
    Text fullName_;
};

} // namespace quillon
