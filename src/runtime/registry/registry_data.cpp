#include "runtime/registry/registry_data.h"

#include "helpers/hex.h"
#include "helpers/little_endian.h"
#include "helpers/utf16.h"
#include "helpers/utf8.h"

#include <utility>

namespace quillon {

RegistryData TextData(std::string_view text)
{
    RegistryData data{kRegistryText, ToUtf16(text)};
    AppendNumber(data.bytes, std::uint16_t{0});
    return data;
}

RegistryData NumberData(std::uint32_t number)
{
    RegistryData data{kRegistryNumber, {}};
    AppendNumber(data.bytes, number);
    return data;
}

RegistryData BytesData(std::string bytes)
{
    return {kRegistryBytes, std::move(bytes)};
}

std::optional<Text> TextOf(const RegistryData& data)
{
    if (data.type != kRegistryText && data.type != kRegistryExpandText)
        return std::nullopt;
    Text text;
    for (std::size_t at = 0; at + 1 < data.bytes.size(); at += 2) {
        char32_t code = ShortAt(data.bytes, at);
        if (code == 0)
            break;
        const char32_t low = IsHighSurrogate(code) && at + 3 < data.bytes.size()
                                 ? ShortAt(data.bytes, at + 2)
                                 : char32_t{0};
        if (IsLowSurrogate(low)) {
            code = JoinSurrogates(code, low);
            at += 2;
        }
        AppendCodePoint(text, code);
    }
    return text;
}

std::optional<std::uint32_t> NumberOf(const RegistryData& data)
{
    if (data.type != kRegistryNumber || data.bytes.size() != 4)
        return std::nullopt;
    return LongAt(data.bytes, 0);
}

Text HexText(std::string_view bytes)
{
    Text hex;
    for (const char c : bytes)
        AppendHexByte(hex, static_cast<unsigned char>(c), kHexDigits);
    return hex;
}

std::optional<std::string> BytesOfHex(std::string_view hex)
{
    if (hex.size() % 2 != 0)
        return std::nullopt;
    std::string bytes;
    for (std::size_t at = 0; at < hex.size(); at += 2) {
        const int byte = HexByteValue(hex[at], hex[at + 1]);
        if (byte < 0)
            return std::nullopt;
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

} // namespace quillon
