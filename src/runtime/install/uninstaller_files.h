// What the uninstaller consists of in a product's main folder, beside the journal: the program that
// the user starts (`UninstallerPath`), the setup proper, which it starts, and the digest by which
// it checks that one.
#pragma once

#include "platform/file_system.h"

#include <array>

namespace quillon {

class InstallTransaction;

/// What the uninstaller starts, and the file with its digest. Both may be missing: earlier versions
/// were a single program.
std::array<Text, 2> FilesOfUninstaller(const Text& mainFolder);

/// Puts all three from the folder with the package's programs into their places. The journal does
/// not name them: the uninstaller removes them last, unless another product needs them.
void PutUninstallerFiles(FileSystem& files, const Text& helpersFolder, const Text& mainFolder,
                         InstallTransaction& transaction);

} // namespace quillon
