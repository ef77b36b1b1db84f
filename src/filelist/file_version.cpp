#include "filelist/file_version.h"

#include "helpers/version_resource.h"
#include "platform/run_error.h"

namespace quillon {

Text FileVersionText(const FileSystem& files, const Text& path)
{
    try {
        const auto file = files.OpenInput(path);
        const auto read = [&](std::uint64_t position, std::span<std::byte> buffer) {
            file->Seek(position);
            return file->Read(buffer);
        };
        return GetFileVersionData(read).FileVersion;
    } catch (const RunError&) {
        return {};
    }
}

} // namespace quillon
