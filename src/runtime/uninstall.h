// Removes a product by the record of its installation, from the last change to the first: exactly
// what was installed, and nothing else.
//
// - A file that the setup wrote goes, whether or not it was there before; in the Windows folder and
//   below, one that was there before stays, since others may need it.
// - A file with a backup comes back from it. A shared file stays until its last user goes.
// - A file that waits to be replaced at the machine's next start isn't any more.
// - A folder goes if the setup made it and it is empty.
// - A value that was there before gets its former data back if it still has ours.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"
#include "runtime/action_log.h"
#include "runtime/exit_codes.h"
#include "runtime/install_journal.h"
#include "runtime/language_file.h"
#include "runtime/target.h"

#include <functional>
#include <optional>

namespace quillon {

struct InstalledProduct {
    Text name;
    LanguageTexts texts; // with what the installation was told to show
    std::vector<JournalRecord> records;
};

/// Nothing where the file is missing or no log.
std::optional<InstalledProduct> ReadInstalledProduct(const FileSystem& files, const Text& logPath);

struct UninstallInput {
    Host& host;
    Target& target;
    Ask& ask;
    ActionLog& log;
    Text logPath;
    const InstalledProduct& product;
    /// Gets the running program's own file out of the main folder, if it is that one. Nothing where
    /// the file can be removed like any other.
    std::function<void(const Text& uninstaller)> removeProgram = {};
};

/// `Failed` where something could not be removed; the rest is, and the product stays in the
/// system's list, so that it can be tried again.
ExitCode Uninstall(const UninstallInput& input);

/// Whether the log is one of a product in the folder of that program.
bool IsInSameFolder(const FileSystem& files, const Text& logPath, const Text& program);

/// The uninstaller believes no other log: it would remove whatever a file says that somebody has
/// given it. One that is beside it must not be of a user with fewer rights either, unless that
/// user has made the program as well.
bool IsBelievable(const FileSystem& files, const Target& target, const Text& logPath,
                  const Text& program);

/// Products that share a main folder share the uninstaller in it: true where this product's going
/// takes along the program at `uninstaller`.
bool GoesWithProduct(const FileSystem& files, const Text& logPath, const Text& uninstaller);

} // namespace quillon
