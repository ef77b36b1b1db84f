#include "ini/ini_text.h"

#include <algorithm>

namespace quillon {

namespace {

// Other programs write these files too, and some end their lines with a CR alone.
constexpr IniSyntax kSyntax = {IniSyntax::LineEnd::AtLfOrCr, IniSyntax::Header::ToFirstBracket};

// A header whose bracket is missing ends the section before it, too.
bool EndsSection(const ScannedLine& line)
{
    return line.kind == ScannedLine::Kind::Header || line.kind == ScannedLine::Kind::OpenHeader;
}

// Whether the lines from here to the next section are all blank.
bool IsEmptySection(IniScanner lines)
{
    for (auto line = lines.Next(); line && !EndsSection(*line); line = lines.Next())
        if (!line->text.empty())
            return false;
    return true;
}

} // namespace

bool IniText::SameName(std::string_view left, std::string_view right) const
{
    if (names_ == Names::Utf8)
        return EqualIgnoreCase(left, right);
    const auto fold = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [&](char a, char b) { return fold(a) == fold(b); });
}

std::optional<ScannedLine> IniText::FindSection(std::string_view section) const
{
    IniScanner lines(bytes_, kSyntax);
    while (const auto line = lines.Next())
        if (line->kind == ScannedLine::Kind::Header &&
            SameName(WithoutBlanks(line->name), WithoutBlanks(section)))
            return line;
    return std::nullopt;
}

std::optional<ScannedLine> IniText::FindValue(std::string_view section, std::string_view name) const
{
    const auto header = FindSection(section);
    if (!header)
        return std::nullopt;
    IniScanner lines(bytes_, kSyntax, header->next);
    for (auto line = lines.Next(); line && !EndsSection(*line); line = lines.Next())
        if (line->kind == ScannedLine::Kind::Value && SameName(line->name, WithoutBlanks(name)))
            return line;
    return std::nullopt;
}

bool IniText::HasSection(std::string_view section) const
{
    return FindSection(section).has_value();
}

std::optional<std::string> IniText::Value(std::string_view section, std::string_view name) const
{
    const auto line = FindValue(section, name);
    if (!line)
        return std::nullopt;
    return std::string(line->value);
}

std::optional<std::string> IniText::LineOf(std::string_view section, std::string_view name) const
{
    const auto line = FindValue(section, name);
    if (!line)
        return std::nullopt;
    return std::string(line->whole);
}

std::string IniText::OpenLastLine() const
{
    const std::size_t last = bytes_.find_last_of("\r\n");
    return last == std::string::npos ? bytes_ : bytes_.substr(last + 1);
}

void IniText::RemoveFinalLineBreakAfter(std::string_view lastLine)
{
    std::string closed(lastLine);
    closed += kLineBreak;
    const bool isLast =
        bytes_.ends_with(closed) &&
        (bytes_.size() == closed.size() || bytes_[bytes_.size() - closed.size() - 1] == '\n' ||
         bytes_[bytes_.size() - closed.size() - 1] == '\r');
    if (isLast)
        bytes_.resize(bytes_.size() - kLineBreak.size());
}

void IniText::Insert(std::size_t at, std::string text)
{
    if (at > 0 && bytes_[at - 1] != '\n' && bytes_[at - 1] != '\r')
        text.insert(0, kLineBreak);
    bytes_.insert(at, text);
}

void IniText::MakeSection(std::string_view section)
{
    if (!HasSection(section))
        Insert(bytes_.size(), "[" + std::string(section) + "]" + std::string(kLineBreak));
}

void IniText::SetValue(std::string_view section, std::string_view name, std::string_view value)
{
    const std::string text = std::string(name) + "=" + std::string(value);
    if (const auto line = FindValue(section, name)) {
        bytes_.replace(line->begin, line->end - line->begin, text);
        return;
    }
    MakeSection(section);
    // After the section's last line that is not blank, so that the gap to the next section stays.
    std::size_t at = FindSection(section)->next;
    IniScanner lines(bytes_, kSyntax, at);
    for (auto line = lines.Next(); line && !EndsSection(*line); line = lines.Next())
        at = line->text.empty() ? at : line->next;
    Insert(at, text + std::string(kLineBreak));
}

void IniText::SetLine(std::string_view section, std::string_view name, std::string_view text)
{
    if (const auto line = FindValue(section, name))
        bytes_.replace(line->begin, line->end - line->begin, text);
}

void IniText::RemoveValue(std::string_view section, std::string_view name)
{
    if (const auto line = FindValue(section, name))
        bytes_.erase(line->begin, line->next - line->begin);
}

void IniText::RemoveEmptySection(std::string_view section)
{
    const auto header = FindSection(section);
    if (header && IsEmptySection(IniScanner(bytes_, kSyntax, header->next)))
        bytes_.erase(header->begin, header->next - header->begin);
}

} // namespace quillon
