// A note that a setup of a product is at work, and in which folder, for the next run: a setup that
// is killed in a folder that its user has chosen is named neither by the list of programs nor by
// its package. It is a registry value, of the machine or, where that may not be written, of the
// user; it is there before the journal of the transaction is, and goes after it.
#pragma once

#include "platform/file_system.h"
#include "runtime/install_scope.h"
#include "runtime/target.h"

namespace quillon {

/// Throws where it can't be noted. A user who may write neither to the machine's registry nor to
/// his own installs without.
void NoteStartedSetup(Target& target, const Text& product, InstallScope scope,
                      const Text& mainFolder);

/// The main folders that are noted for the product. One counts only if the journal of a transaction
/// is there that nobody with fewer rights has made.
std::vector<Text> FoldersOfStartedSetups(const FileSystem& files, const Target& target,
                                         const Text& product);

/// What can't be removed stays: without a journal it means nothing.
void ForgetStartedSetups(Target& target, const Text& product);

} // namespace quillon
