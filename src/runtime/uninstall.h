// Removes a product by the record of its installation, from the last change to the first: exactly
// what was installed, and nothing else.
//
// - A file that the setup wrote goes, whether or not it was there before; in the Windows folder and
//   below, one that was there before stays, since others may need it.
// - A file with a backup comes back from it. A shared file stays until its last user goes.
// - A folder goes if the setup made it and it is empty.
// - A value that was there before gets its former data back if it still has ours.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"
#include "runtime/exit_codes.h"
#include "runtime/install_log.h"
#include "runtime/language_file.h"
#include "runtime/target.h"
#include "runtime/text_log.h"

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
    TextLog& log;
    Text logPath;
    const InstalledProduct& product;
};

/// `Failed` where something could not be removed; the rest is.
ExitCode Uninstall(const UninstallInput& input);

/// Products that share a main folder share the uninstaller in it: true where this product's going
/// takes along the program at `uninstaller`.
bool GoesWithProduct(const FileSystem& files, const Text& logPath, const Text& uninstaller);

} // namespace quillon
