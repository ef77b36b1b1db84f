#include "ini/encoded_ini.h"

#include "helpers/ansi_text.h"
#include "helpers/utf16.h"

namespace quillon {

std::optional<EncodedIni> EncodedIni::Read(std::string bytes)
{
    if (bytes.starts_with(kUtf16BigEndianBom))
        return std::nullopt;
    if (!bytes.starts_with(kUtf16Bom))
        return EncodedIni(IniText(std::move(bytes)), false);
    EncodedIni read(
        IniText(FromUtf16(std::string_view(bytes).substr(kUtf16Bom.size())), IniText::Names::Utf8),
        true);
    // What was replaced on the way in would not come back.
    if (read.Bytes() != bytes)
        return std::nullopt;
    return read;
}

std::string EncodedIni::Coded(std::string_view text) const
{
    return isUtf16_ ? std::string(text) : AnsiText::ToBytes(text);
}

Text EncodedIni::Decoded(std::string_view coded) const
{
    return isUtf16_ ? Text(coded) : AnsiText::FromBytes(coded);
}

std::string EncodedIni::Bytes() const
{
    return isUtf16_ ? std::string(kUtf16Bom) + ToUtf16(ini.Bytes()) : ini.Bytes();
}

} // namespace quillon
