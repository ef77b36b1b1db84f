#include "project/unicode_value.h"

#include "helpers/ansi_text.h"
#include "helpers/utf8.h"
#include "ini/profile_lines.h"

namespace quillon {

namespace {

constexpr std::string_view kUtf8Prefix = "utf-8:";

} // namespace

Text UnicodeValueOnFile(const Text& value, int limit)
{
    if (value.find_first_of("\r\n") != Text::npos)
        return {};
    const bool isPlain = AnsiText::Holds(value) && !value.starts_with(kUtf8Prefix);
    std::string bytes = isPlain ? AnsiText::ToBytes(value) : std::string(kUtf8Prefix).append(value);
    // A reader takes blanks off at both ends, and one pair of quotation marks.
    if (BareValue(bytes) != bytes)
        bytes = '"' + bytes + '"';
    return bytes.size() < static_cast<std::size_t>(limit) ? AnsiText::FromBytes(bytes) : Text();
}

Text UnicodeValueFromFile(const Text& onFile)
{
    if (!onFile.starts_with(kUtf8Prefix))
        return onFile;
    Text value = AnsiText::ToBytes(std::string_view(onFile).substr(kUtf8Prefix.size()));
    return IsUtf8(value) ? value : Text();
}

} // namespace quillon
