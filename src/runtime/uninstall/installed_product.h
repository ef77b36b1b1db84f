// A product as the journal of its installation describes it, and which of such journals the
// uninstaller trusts.
#pragma once

#include "platform/file_system.h"
#include "runtime/journal/install_journal.h"
#include "runtime/target.h"
#include "runtime/texts/language_file.h"

#include <optional>
#include <set>

namespace quillon {

struct InstalledProduct {
    Text name;
    LanguageTexts texts; // the installation's where it recorded them, else the standard ones
    std::vector<JournalRecord> records;
};

/// Nothing where the file is missing or no journal.
std::optional<InstalledProduct> ReadInstalledProduct(const FileSystem& files,
                                                     const Text& journalPath);

struct JournalToRewrite {
    FileSystem& files;
    Target& target;
    const Text& path;
};

/// Writes the journal again without the records that count those shared files; the paths are in
/// lower case.
void ForgetSharedFiles(const JournalToRewrite& journal, const std::vector<JournalRecord>& records,
                       const std::set<Text>& paths);

/// Whether the journal is one of a product in the folder of that program.
bool IsInSameFolder(const FileSystem& files, const Text& journalPath, const Text& program);

/// The uninstaller takes no other journal: it would remove whatever a file names that another user
/// has passed to it. A journal beside the program must not belong to a user with fewer rights
/// either, unless the program belongs to the same user.
bool IsTrusted(const FileSystem& files, const Target& target, const Text& journalPath,
               const Text& program);

/// Products that share a main folder share the uninstaller in it: true where removing this product
/// also removes the program at `uninstaller`.
bool IsUninstallerRemovedWith(const FileSystem& files, const Text& journalPath,
                              const Text& uninstaller);

} // namespace quillon
