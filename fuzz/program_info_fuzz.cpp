// Programs that lie about what they need: any bytes must come to an end, with short plain names.
#include "helpers/program_info.h"
#include "importers/dotnet_need.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

using namespace quillon;

namespace {

void RequireNames(const std::vector<Text>& names)
{
    for (const Text& name : names)
        if (name.empty() || name.size() > 260 ||
            std::ranges::any_of(name, [](char c) { return c <= ' ' || c > '~'; }))
            std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const ReadFileAt read = [&](std::uint64_t position,
                                std::span<std::byte> buffer) -> std::size_t {
        if (position >= size)
            return 0;
        const std::size_t count =
            std::min(buffer.size(), size - static_cast<std::size_t>(position));
        std::memcpy(buffer.data(), bytes + position, count);
        return count;
    };
    if (const auto info = ReadProgramInfo(read)) {
        RequireNames(info->imports);
        RequireNames(info->delayedImports);
        DotNetNeedText(NeedOfProgram(*info));
    }
    // A run-time configuration is as foreign as the program beside it.
    DotNetNeedText(NeedOfRuntimeConfig({reinterpret_cast<const char*>(bytes), size}));
    return 0;
}
