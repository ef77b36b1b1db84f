// A note that a setup of a product is at work, and in which folder, for the next run: a setup that
// is killed in a folder that its user has chosen is named neither by the list of programs nor by
// its package. It is a registry value, of the machine or, where that may not be written, of the
// user. It exists from before the transaction's journal is made until after that is removed.
#pragma once

#include "platform/file_system.h"
#include "runtime/install_scope.h"
#include "runtime/target.h"

namespace quillon {

/// Throws where it can't be noted. A user who may write neither to the machine's registry nor to
/// his own installs without.
void NoteStartedSetup(Target& target, const Text& product, InstallScope scope,
                      const Text& mainFolder);

/// The main folders that are noted for the product. Only those count that have the journal of a
/// transaction which no user with fewer rights can have made.
std::vector<Text> FoldersOfStartedSetups(const FileSystem& files, const Target& target,
                                         const Text& product);

/// What can't be removed stays: without a journal it has no effect.
void ForgetStartedSetups(Target& target, const Text& product);

} // namespace quillon
