#include "filelist/adding/file_version.h"

#include "platform/run_error.h"

namespace quillon {

FileVersionData VersionDataOfFile(const FileSystem& files, const Text& path)
{
    try {
        const auto file = files.OpenInput(path);
        const auto read = [&](std::uint64_t position, std::span<std::byte> buffer) {
            file->Seek(position);
            return file->Read(buffer);
        };
        return GetFileVersionData(read);
    } catch (const RunError&) {
        return {};
    }
}

Text FileVersionText(const FileSystem& files, const Text& path)
{
    return VersionDataOfFile(files, path).FileVersion;
}

} // namespace quillon
