#include "project/unicode_value.h"

#include "helpers/ansi_text.h"
#include "helpers/utf8.h"

namespace quillon {

namespace {

constexpr std::string_view kUtf8Bom = "utf-8:";

} // namespace

Text UnicodeValueOnFile(const Text& value, int limit)
{
    if (value.find_first_of("\r\n") != Text::npos)
        return {};
    if (AnsiText::Holds(value))
        return value;
    const bool isCut = kUtf8Bom.size() + value.size() >= static_cast<std::size_t>(limit);
    return isCut ? Text() : Text(kUtf8Bom) + AnsiText::FromBytes(value);
}

Text UnicodeValueFromFile(const Text& onFile)
{
    if (!onFile.starts_with(kUtf8Bom))
        return onFile;
    Text value = AnsiText::ToBytes(std::string_view(onFile).substr(kUtf8Bom.size()));
    return IsUtf8(value) ? value : Text();
}

} // namespace quillon
