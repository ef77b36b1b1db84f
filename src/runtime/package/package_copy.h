// Files of the package that the setup copies to its private folder, to start or to install them
// from there. The copy is compared with the manifest, not the file in the package: others may be
// able to change the package, but not the copy.
#pragma once

#include "formats/package_manifest.h"
#include "runtime/texts/language_file.h"

namespace quillon {

/// Copies the file of that name from the package's folder to the path `to`. Throws `SetupFailure`
/// of a damaged package where the file is missing, or is not what the manifest lists; a package
/// without a manifest lists nothing.
void CopyFromPackage(FileSystem& files, const Text& packageFolder, const Text& name, const Text& to,
                     const PackageManifest& manifest, const LanguageTexts& texts);

} // namespace quillon
