// The machine that the tool runs on: its folders, its registry, its clock and its habits.
#pragma once

#include "helpers/date_text.h"
#include "helpers/text.h"

#include <cstdint>
#include <optional>

namespace quillon {

/// The registry's roots as this tool counts them.
enum class RegistryRoot {
    ClassesRoot = 1,
    CurrentUser = 2,
    LocalMachine = 3,
    Users = 4,
    CurrentConfig = 5,
    DynData = 6
};

struct RegisteredOwner {
    Text owner;
    Text organization;
};

class Machine {
public:
    virtual ~Machine() = default;

    // Folders, without a trailing backslash; empty where the machine has no such folder.
    virtual Text GetWindowsDir() const = 0;
    virtual Text GetSystemDir() const = 0;
    virtual Text GetProgramFilesDir() const = 0;
    virtual Text GetMyDocumentsDir() const = 0;
    virtual Text GetSysAppDataDirectory() const = 0;
    virtual Text GetSysLocalAppDataDirectory() const = 0;
    virtual Text GetSysTemplatesDirectory() const = 0;
    /// Where a file may lie for the length of one command.
    virtual Text GetTempDir() const = 0;
    /// Where the tool keeps what its user has set. It need not be there yet.
    virtual Text GetSettingsDir() const = 0;

    /// The text of a registry value (an empty name is the key's default value); nothing when the
    /// key or the value is missing.
    virtual std::optional<Text> ReadRegistryValue(RegistryRoot root, const Text& subKey,
                                                  const Text& valueName) const = 0;
    /// The same, an empty text when it is missing; at most 1024 characters.
    Text GetRegKeyStr(RegistryRoot root, const Text& subKey, const Text& valueName) const
    {
        return FirstCharacters(ReadRegistryValue(root, subKey, valueName).value_or(""), 1024);
    }
    virtual RegisteredOwner GetWindowsRegisteredOwner() const = 0;

    virtual bool IsWindowsXP() const = 0;
    /// True when the display uses large fonts.
    virtual bool GetDisplayCharSize() const = 0;
    /// The decimal sign of the user's locale, '.' or ','.
    virtual char DecimalSign() const = 0;

    virtual LocalTime Now() const = 0;
    /// Evenly spread over 0 to `below` - 1.
    virtual std::uint32_t Random(std::uint32_t below) = 0;

    /// Starts a program without waiting for it; throws 53 or 76 when it is not there, 5 when it
    /// can't be started. `program` is a Windows path.
    virtual void StartProgram(const Text& program, const Text& arguments) = 0;
    /// Opens a document in the program that the system assigns to it; the same failures.
    virtual void OpenDocument(const Text& path) = 0;
    /// Opens a text file, whatever its extension, in Windows' own editor or, on another system, in
    /// the one that its user has chosen for texts; the same failures.
    virtual void EditTextFile(const Text& path) = 0;
};

} // namespace quillon
