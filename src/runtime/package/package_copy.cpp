#include "runtime/package/package_copy.h"

#include "helpers/windows_path.h"
#include "runtime/texts/failure_reason.h"

#include <algorithm>

namespace quillon {

void CopyFromPackage(FileSystem& files, const Text& packageFolder, const Text& name, const Text& to,
                     const PackageManifest& manifest, const LanguageTexts& texts)
{
    const Text path = JoinPath(packageFolder, name);
    if (!files.FileExists(path))
        throw DamagedPackage(texts, {Message::PackageFileMissing, name});
    files.CopyContent(path, to);
    if (manifest.state == PackageManifest::State::Missing)
        return;
    const Sha256Digest digest = DigestOfFile(files, to);
    if (std::ranges::none_of(manifest.lines, [&](const ManifestLine& line) {
            return EqualIgnoreCase(line.name, name) && line.digest == digest;
        }))
        throw DamagedPackage(texts, {Message::PackageFileDamaged, name});
}

} // namespace quillon
