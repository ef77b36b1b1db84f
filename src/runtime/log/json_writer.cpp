#include "runtime/log/json_writer.h"

#include "helpers/hex.h"
#include "helpers/number_text.h"
#include "helpers/utf8.h"

namespace quillon {

void JsonWriter::Begin(std::string_view name)
{
    if (!text_.empty() && text_.back() != '{' && text_.back() != '[')
        text_ += ',';
    if (name.empty())
        return;
    Quote(name);
    text_ += ':';
}

void JsonWriter::Open(std::string_view name, char bracket)
{
    Begin(name);
    text_ += bracket;
    open_ += bracket == '{' ? '}' : ']';
}

void JsonWriter::Close()
{
    text_ += open_.back();
    open_.pop_back();
}

void JsonWriter::Add(std::string_view name, std::string_view text)
{
    Begin(name);
    Quote(text);
}

void JsonWriter::Add(std::string_view name, std::int64_t number)
{
    Begin(name);
    text_ += NumberText(number);
}

void JsonWriter::AddFlag(std::string_view name, bool value)
{
    Begin(name);
    text_ += value ? "true" : "false";
}

void JsonWriter::Quote(std::string_view text)
{
    text_ += '"';
    for (std::size_t at = 0; at < text.size();) {
        const char32_t codePoint = NextCodePoint(text, at);
        if (codePoint < 0x20 || codePoint == 0x7F) {
            text_ += "\\u00";
            AppendHexByte(text_, static_cast<unsigned char>(codePoint), kSmallHexDigits);
            continue;
        }
        if (codePoint == '"' || codePoint == '\\')
            text_ += '\\';
        AppendCodePoint(text_, codePoint);
    }
    text_ += '"';
}

} // namespace quillon
