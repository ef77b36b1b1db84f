// The data of a registry value as the registry keeps it: a type number and bytes. Texts are UTF-16
// with a zero after them.
#pragma once

#include "helpers/text.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quillon {

inline constexpr std::uint32_t kRegistryText = 1;
inline constexpr std::uint32_t kRegistryExpandText = 2;
inline constexpr std::uint32_t kRegistryBytes = 3;
inline constexpr std::uint32_t kRegistryNumber = 4;

struct RegistryData {
    std::uint32_t type = kRegistryBytes;
    std::string bytes;

    bool operator==(const RegistryData&) const = default;
};

RegistryData TextData(std::string_view text);
RegistryData NumberData(std::uint32_t number);
RegistryData BytesData(std::string bytes);

/// Nothing where the value is of another type.
std::optional<Text> TextOf(const RegistryData& data);
std::optional<std::uint32_t> NumberOf(const RegistryData& data);

/// "A2FF32", and back; nothing where the text is no row of whole bytes.
Text HexText(std::string_view bytes);
std::optional<std::string> BytesOfHex(std::string_view hex);

} // namespace quillon
