#include "shell/known_file.h"

#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <functional>

namespace quillon {

KnownFile LookAtFile(const FileSystem& files, const Text& path)
{
    KnownFile known{.path = path, .content = {}};
    RunErrorNumber([&] {
        const std::string bytes = ReadWholeFile(files, path);
        known.content = {.size = bytes.size(), .hash = std::hash<std::string>()(bytes)};
    });
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
