// The numbers in a program's resources, the lowest byte first.
#pragma once

#include <cstdint>
#include <string>

namespace quillon {

/// The lowest `size` bytes of the number.
inline void AppendNumber(std::string& bytes, std::uint32_t number, int size)
{
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
}

} // namespace quillon
