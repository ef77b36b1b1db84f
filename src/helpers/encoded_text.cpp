#include "helpers/encoded_text.h"

#include "helpers/ansi_text.h"
#include "helpers/utf16.h"
#include "helpers/utf8.h"

#include <utility>

namespace quillon {

namespace {

Text FromUtf16BigEndian(std::string_view bytes)
{
    std::string swapped(bytes.substr(0, bytes.size() / 2 * 2));
    for (std::size_t i = 0; i < swapped.size(); i += 2)
        std::swap(swapped[i], swapped[i + 1]);
    return FromUtf16(swapped);
}

} // namespace

Text DecodedText(std::string_view bytes)
{
    if (bytes.starts_with(kUtf16Bom))
        return FromUtf16(bytes.substr(kUtf16Bom.size()));
    if (bytes.starts_with(kUtf16BigEndianBom))
        return FromUtf16BigEndian(bytes.substr(kUtf16BigEndianBom.size()));
    if (bytes.starts_with(kUtf8Bom))
        bytes.remove_prefix(kUtf8Bom.size());
    return IsUtf8(bytes) ? Text(bytes) : AnsiText::FromBytes(bytes);
}

} // namespace quillon
