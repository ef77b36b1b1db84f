// Programs that lie about their version resource: any bytes must come to an end, with short texts.
#include "helpers/version_resource.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto read = [&](std::uint64_t position, std::span<std::byte> buffer) -> std::size_t {
        if (position >= size)
            return 0;
        const std::size_t count =
            std::min(buffer.size(), size - static_cast<std::size_t>(position));
        std::memcpy(buffer.data(), bytes + position, count);
        return count;
    };
    const quillon::FileVersionData data = quillon::GetFileVersionData(read);
    if (quillon::CharacterCount(data.ProductName) > 300)
        std::abort();
    return 0;
}
