// The Windows machine that a program of ours runs on.
#pragma once

#include "platform/machine.h"

namespace quillon {

class WinMachine : public Machine {
public:
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

    bool IsWindowsXP() const override;
    bool GetDisplayCharSize() const override;
    char DecimalSign() const override;

    LocalTime Now() const override;
    std::uint32_t Random(std::uint32_t below) override;

    void StartProgram(const Text& program, const Text& arguments) override;
    void OpenDocument(const Text& path) override;
    void EditTextFile(const Text& path) override;
};

} // namespace quillon
