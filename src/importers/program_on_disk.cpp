#include "importers/program_on_disk.h"

#include "platform/run_error.h"

namespace quillon {

std::optional<ProgramInfo> InfoOfProgram(const FileSystem& files, const Text& path)
{
    try {
        const auto file = files.OpenInput(path);
        const ReadFileAt read = [&](std::uint64_t position, std::span<std::byte> buffer) {
            file->Seek(position);
            return file->Read(buffer);
        };
        return ReadProgramInfo(read);
    } catch (const RunError&) {
        return std::nullopt;
    }
}

} // namespace quillon
