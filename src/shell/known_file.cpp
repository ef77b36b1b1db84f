#include "shell/known_file.h"

#include "formats/package_manifest.h"
#include "platform/run_error.h"

namespace quillon {

KnownFile LookAtFile(const FileSystem& files, const Text& path)
{
    KnownFile known{.path = path, .content = {}};
    RunErrorNumber([&] { known.content = DigestOfFile(files, path); });
    return known;
}

bool IsSameFile(const FileSystem& files, const Text& left, const Text& right)
{
    return EqualIgnoreCase(files.RealPath(left), files.RealPath(right));
}

bool HasChangedSince(const FileSystem& files, const KnownFile& known, const Text& path)
{
    if (known.path.empty() || !IsSameFile(files, known.path, path) || !files.FileExists(path))
        return false;
    return LookAtFile(files, path).content != known.content;
}

} // namespace quillon
