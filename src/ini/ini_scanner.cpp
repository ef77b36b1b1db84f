#include "ini/ini_scanner.h"

#include "helpers/ascii.h"

#include <algorithm>

namespace quillon {

namespace {

std::size_t EndOfLine(std::string_view bytes, std::size_t begin, IniSyntax::LineEnd lineEnd)
{
    return std::min(lineEnd == IniSyntax::LineEnd::AtLf ? bytes.find('\n', begin)
                                                        : bytes.find_first_of("\r\n", begin),
                    bytes.size());
}

std::size_t ClosingBracket(std::string_view text, IniSyntax::Header header)
{
    switch (header) {
    case IniSyntax::Header::ToLastBracket:
        return text.rfind(']');
    case IniSyntax::Header::ToFirstBracket:
        return text.find(']');
    case IniSyntax::Header::WholeLine:
        break;
    }
    return text.ends_with(']') ? text.size() - 1 : std::string_view::npos;
}

// Whether the line is one.
bool TakeHeader(ScannedLine& line, IniSyntax::Header header)
{
    if (!line.text.starts_with('['))
        return false;
    const std::size_t close = ClosingBracket(line.text, header);
    const bool isClosed = close != std::string_view::npos;
    if (!isClosed && header != IniSyntax::Header::ToFirstBracket)
        return false;
    line.kind = isClosed ? ScannedLine::Kind::Header : ScannedLine::Kind::OpenHeader;
    line.name = line.text.substr(1, isClosed ? close - 1 : close);
    return true;
}

void TakeValue(ScannedLine& line)
{
    const std::size_t sign = line.text.find('=');
    if (sign == std::string_view::npos)
        return;
    line.kind = ScannedLine::Kind::Value;
    line.name = WithoutBlanks(line.text.substr(0, sign));
    line.value = WithoutBlanks(line.text.substr(sign + 1));
}

} // namespace

std::string_view WithoutBlanks(std::string_view bytes)
{
    while (!bytes.empty() && IsBlank(bytes.front()))
        bytes.remove_prefix(1);
    while (!bytes.empty() && IsBlank(bytes.back()))
        bytes.remove_suffix(1);
    return bytes;
}

ScannedLine ScannedLineAt(std::string_view bytes, std::size_t begin, IniSyntax syntax)
{
    ScannedLine line;
    line.begin = begin;
    line.end = EndOfLine(bytes, begin, syntax.lineEnd);
    line.next = std::min(line.end + 1, bytes.size());
    const bool isCrLf = syntax.lineEnd == IniSyntax::LineEnd::AtLf
                            ? line.end > begin && bytes[line.end - 1] == '\r'
                            : bytes.substr(line.end).starts_with("\r\n");
    if (isCrLf && syntax.lineEnd == IniSyntax::LineEnd::AtLf)
        --line.end;
    else if (isCrLf)
        ++line.next;
    line.whole = bytes.substr(begin, line.end - begin);
    line.text = WithoutBlanks(line.whole);
    if (!TakeHeader(line, syntax.header))
        TakeValue(line);
    return line;
}

std::optional<ScannedLine> IniScanner::Next()
{
    if (next_ >= bytes_.size())
        return std::nullopt;
    const ScannedLine line = ScannedLineAt(bytes_, next_, syntax_);
    next_ = line.next;
    return line;
}

} // namespace quillon
