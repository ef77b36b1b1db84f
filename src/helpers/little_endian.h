// Numbers in files of Windows and in archives: the lowest byte first, as many bytes as the type
// has.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

namespace quillon {

/// The bytes are a text or a vector of `std::byte`.
template <class Bytes, class Number>
void AppendNumber(Bytes& bytes, Number number)
{
    static_assert(std::is_unsigned_v<Number>);
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        bytes.push_back(static_cast<typename Bytes::value_type>(number >> (8 * i)));
}

/// The same over bytes that are there.
template <class Bytes, class Number>
void SetNumber(Bytes& bytes, std::size_t position, Number number)
{
    static_assert(std::is_unsigned_v<Number>);
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        bytes[position + i] = static_cast<typename Bytes::value_type>(number >> (8 * i));
}

// The bytes must be there.
constexpr std::uint16_t ShortAt(std::string_view bytes, std::size_t position)
{
    const auto byte = [&](std::size_t i) {
        return static_cast<unsigned>(static_cast<unsigned char>(bytes[position + i]));
    };
    return static_cast<std::uint16_t>(byte(0) | byte(1) << 8U);
}

constexpr std::uint32_t LongAt(std::string_view bytes, std::size_t position)
{
    return ShortAt(bytes, position) | static_cast<std::uint32_t>(ShortAt(bytes, position + 2))
                                          << 16U;
}

} // namespace quillon
