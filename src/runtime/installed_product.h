// A product as the record of its installation describes it, and which of such records the
// uninstaller believes.
#pragma once

#include "platform/file_system.h"
#include "runtime/install_journal.h"
#include "runtime/language_file.h"
#include "runtime/target.h"

#include <optional>
#include <set>

namespace quillon {

struct InstalledProduct {
    Text name;
    LanguageTexts texts; // with those that the installation recorded
    std::vector<JournalRecord> records;
};

/// Nothing where the file is missing or no log.
std::optional<InstalledProduct> ReadInstalledProduct(const FileSystem& files,
                                                     const Text& journalPath);

struct JournalToRewrite {
    FileSystem& files;
    Target& target;
    const Text& path;
};

/// Writes the log anew without the records that count those shared files; the paths are in lower
/// case.
void ForgetSharedFiles(const JournalToRewrite& log, const std::vector<JournalRecord>& records,
                       const std::set<Text>& paths);

/// Whether the log is one of a product in the folder of that program.
bool IsInSameFolder(const FileSystem& files, const Text& journalPath, const Text& program);

/// The uninstaller believes no other log: it would remove whatever a file says that somebody has
/// given it. One that is beside it must not be of a user with fewer rights either, unless that
/// user has made the program as well.
bool IsTrusted(const FileSystem& files, const Target& target, const Text& journalPath,
               const Text& program);

/// Products that share a main folder share the uninstaller in it: true where this product's going
/// takes along the program at `uninstaller`.
bool IsUninstallerRemovedWith(const FileSystem& files, const Text& journalPath,
                              const Text& uninstaller);

} // namespace quillon
