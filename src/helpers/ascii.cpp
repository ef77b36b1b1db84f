#include "helpers/ascii.h"

#include <cstdint>
#include <cstring>

namespace quillon {

// Eight bytes at a time.
std::size_t AsciiLength(std::string_view text, std::size_t begin)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    constexpr unsigned kFirstBeyond = 0x80;
    std::size_t end = begin;
    for (std::uint64_t word = 0; end + sizeof word <= text.size(); end += sizeof word) {
        std::memcpy(&word, text.data() + end, sizeof word);
        if ((word & kHighBits) != 0)
            break;
    }
    while (end < text.size() && static_cast<unsigned char>(text[end]) < kFirstBeyond)
        ++end;
    return end - begin;
}

} // namespace quillon
