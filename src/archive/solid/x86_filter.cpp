#include "archive/solid/x86_filter.h"

namespace quillon {

namespace {

constexpr std::size_t kInstructionSize = 5;
constexpr std::uint32_t kDistanceMask = 0x1FFFFFF;
constexpr std::uint32_t kSignBit = 0x1000000;

bool IsBranch(std::byte operation)
{
    return (std::to_integer<unsigned>(operation) & 0xFEU) == 0xE8;
}

bool IsNear(std::byte highest)
{
    return highest == std::byte{0x00} || highest == std::byte{0xFF};
}

std::uint32_t ReadDistance(const std::byte* at)
{
    std::uint32_t number = 0;
    for (std::size_t i = 4; i > 0; --i)
        number = number << 8U | std::to_integer<std::uint32_t>(at[i]);
    return number;
}

void WriteDistance(std::byte* at, std::uint32_t number)
{
    number &= kDistanceMask;
    if ((number & kSignBit) != 0)
        number |= ~kDistanceMask;
    for (std::size_t i = 1; i <= 4; ++i, number >>= 8U)
        at[i] = static_cast<std::byte>(number & 0xFFU);
}

} // namespace

std::size_t X86Filter::Convert(std::span<std::byte> bytes, bool isLast)
{
    std::size_t i = 0;
    while (i + kInstructionSize <= bytes.size()) {
        std::byte* const at = bytes.data() + i;
        if (!IsBranch(at[0])) {
            ++i;
            continue;
        }
        if (IsNear(at[4])) {
            const std::uint32_t place = position_ + static_cast<std::uint32_t>(i);
            const std::uint32_t number = ReadDistance(at);
            WriteDistance(at, direction_ == Direction::Encode ? number + place : number - place);
        }
        i += kInstructionSize;
    }
    const std::size_t done = isLast ? bytes.size() : i;
    position_ += static_cast<std::uint32_t>(done);
    return done;
}

} // namespace quillon
