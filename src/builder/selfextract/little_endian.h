// Writes the numbers in a program file, the lowest byte first. `helpers/program_headers.h` reads
// them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace quillon {

/// The lowest `size` bytes of the number.
inline void AppendNumber(std::string& bytes, std::uint32_t number, int size)
{
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
}

/// The same over bytes that are there.
inline void SetNumber(std::string& bytes, std::size_t position, std::uint32_t number,
                      std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i)
        bytes[position + i] = static_cast<char>(number >> (8 * i) & 0xFFU);
}

} // namespace quillon
