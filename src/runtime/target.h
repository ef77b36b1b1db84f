// The machine that a product is installed on, beyond its files: registry, shortcuts, fonts,
// programs that register themselves. Windows has the real one; the tests have a twin in memory.
//
// Failures are `RunError`s with the numbers of the file system; their path names the registry key.
#pragma once

#include "platform/file_system.h"
#include "platform/machine.h"
#include "runtime/registry/registry_data.h"

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// The systems that a project can name. A system newer than Windows XP counts as Windows XP.
enum class SystemKind { Win95, Win95OSR2, Win98, WinME, WinNT4, WinNT4SP3, Win2000, WinXP };

enum class TargetFolder {
    CommonFiles,
    Fonts,
    Desktop,
    StartMenu,
    Programs,
    // The same three for all users of the machine.
    CommonDesktop,
    CommonStartMenu,
    CommonPrograms,
};

struct RegistryKey {
    RegistryRoot root = RegistryRoot::LocalMachine;
    Text subKey; // without a leading backslash

    bool operator==(const RegistryKey&) const = default;
};

/// "HKEY_LOCAL_MACHINE\Software\Firma", for logs and failures.
Text KeyText(const RegistryKey& key);
/// The same with the name of a value after it, as in a line of the registry list.
Text ValueText(const RegistryKey& key, std::string_view name);
/// The root of that name, and its name.
std::optional<RegistryRoot> RootNamed(std::string_view name);
Text RootName(RegistryRoot root);

struct Shortcut {
    Text program;
    Text arguments;
    Text workFolder;
    Text iconFile; // empty: the program's own
    Text description;
};

/// What a self-registering file said.
enum class Registration { Done, NotSelfRegistering, Failed };

/// A program that is waited for.
struct ProgramRun {
    Text program;
    Text arguments;
    bool isHidden = false;
};

class Target {
public:
    virtual ~Target() = default;

    virtual SystemKind System() const = 0;
    /// Without a trailing backslash; empty where the system has no such folder.
    virtual Text Folder(TargetFolder folder) const = 0;

    virtual bool KeyExists(const RegistryKey& key) const = 0;
    virtual std::vector<Text> SubKeys(const RegistryKey& key) const = 0;
    virtual std::vector<Text> ValueNames(const RegistryKey& key) const = 0;
    virtual std::optional<RegistryData> ReadValue(const RegistryKey& key,
                                                  const Text& name) const = 0;
    /// With all missing keys above it; nothing happens where it exists.
    virtual void MakeKey(const RegistryKey& key) = 0;
    /// Into a key that exists.
    virtual void WriteValue(const RegistryKey& key, const Text& name, const RegistryData& data) = 0;
    virtual void RemoveValue(const RegistryKey& key, const Text& name) = 0;
    /// A key without subkeys; its values go with it.
    virtual void RemoveKey(const RegistryKey& key) = 0;

    virtual void MakeShortcut(const Text& path, const Shortcut& shortcut) = 0;
    /// Nothing where the file is no shortcut to a file.
    virtual std::optional<Shortcut> ReadShortcut(const Text& path) const = 0;
    /// Lets the file register itself (`on`) or take its registration back.
    virtual Registration RegisterServer(const Text& path, bool on) = 0;
    /// Makes a font known to running programs, or withdraws it so that its file can go.
    virtual void AnnounceFont(const Text& path, bool on) = 0;
    /// Puts `from` in the place of `to` when the machine starts next; an empty `to` removes `from`.
    virtual void MoveAtRestart(const Text& from, const Text& to) = 0;

    /// Starts the program with the setup's own rights, in its own folder, and waits for its end.
    /// Returns its exit code. The setup's windows keep working meanwhile. Throws where it can't be
    /// started.
    virtual int RunProgram(const ProgramRun& run) = 0;

    /// Restricts a file to administrators and the system, where an administrator calls this and the
    /// disk has rights.
    virtual void CloseToOthers(const Text& path) = 0;
    /// Gives a file the rights and the attributes (read-only, hidden, system) of another one on the
    /// same disk, whose place it is about to take.
    virtual void CopyRights(const Text& from, const Text& to) = 0;
    /// False where another user made `path` than the one who makes files now, such as `own`.
    virtual bool HaveSameOwner(const Text& path, const Text& own) const = 0;
    /// Whether the file belongs to administrators, to the system or to the user who runs this, so
    /// that no user with fewer rights can have made it. True on a disk without owners.
    virtual bool IsOfTrustedUser(const Text& path) const = 0;
    /// Opens such a file for reading; nothing comes back where it belongs to another user. While it
    /// is open, it can't be written to or replaced. Throws as `FileSystem::OpenInput` does.
    virtual std::unique_ptr<InputFile> OpenOfTrustedUser(const Text& path) const = 0;
    /// Whether the path is a link to another folder.
    virtual bool IsLink(const Text& folder) const = 0;
    /// Whether two paths lead to one file, however they are spelt. False where one is missing.
    virtual bool IsSameFile(const Text& path, const Text& other) const = 0;

    /// Asks the system not to end the session while the answer is alive, with a reason for the
    /// user.
    virtual std::shared_ptr<void> HoldShutdown(const Text& reason) = 0;
};

} // namespace quillon
