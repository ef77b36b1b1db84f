#include "ini/ini_text.h"

#include <algorithm>

namespace quillon {

namespace {

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == Text::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Case is folded for ASCII alone, since the bytes may be of any code page.
bool SameName(std::string_view left, std::string_view right)
{
    const auto fold = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [&](char a, char b) { return fold(a) == fold(b); });
}

bool IsSectionLine(std::string_view line)
{
    return !line.empty() && line.front() == '[';
}

bool IsSectionNamed(std::string_view line, std::string_view section)
{
    if (!IsSectionLine(line))
        return false;
    const std::size_t close = line.find(']');
    return close != Text::npos && SameName(Trimmed(line.substr(1, close - 1)), Trimmed(section));
}

} // namespace

IniText::Line IniText::LineAt(std::size_t begin) const
{
    const std::size_t end = std::min(bytes_.find_first_of("\r\n", begin), bytes_.size());
    std::size_t next = end;
    if (next < bytes_.size())
        next += bytes_.compare(next, 2, kLineBreak) == 0 ? 2 : 1;
    return {begin, end, next};
}

std::string_view IniText::TextOf(const Line& line) const
{
    return Trimmed(std::string_view(bytes_).substr(line.begin, line.end - line.begin));
}

std::optional<IniText::Line> IniText::FindSection(std::string_view section) const
{
    for (Line line = LineAt(0); line.begin < bytes_.size(); line = LineAt(line.next))
        if (IsSectionNamed(TextOf(line), section))
            return line;
    return std::nullopt;
}

std::optional<IniText::Line> IniText::FindValue(std::string_view section,
                                                std::string_view name) const
{
    const auto header = FindSection(section);
    if (!header)
        return std::nullopt;
    for (Line line = LineAt(header->next); line.begin < bytes_.size(); line = LineAt(line.next)) {
        const std::string_view text = TextOf(line);
        if (IsSectionLine(text))
            break;
        const std::size_t equals = text.find('=');
        if (equals != Text::npos && SameName(Trimmed(text.substr(0, equals)), Trimmed(name)))
            return line;
    }
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
    const std::string_view text = TextOf(*line);
    return std::string(Trimmed(text.substr(text.find('=') + 1)));
}

std::optional<std::string> IniText::LineOf(std::string_view section, std::string_view name) const
{
    const auto line = FindValue(section, name);
    if (!line)
        return std::nullopt;
    return bytes_.substr(line->begin, line->end - line->begin);
}

std::string IniText::OpenLastLine() const
{
    const std::size_t last = bytes_.find_last_of("\r\n");
    return last == std::string::npos ? bytes_ : bytes_.substr(last + 1);
}

void IniText::OpenEndOf(std::string_view lastLine)
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
    // Behind the section's last line that is not blank, so that the gap to the next section stays.
    std::size_t at = 0;
    Line line = *FindSection(section);
    do {
        at = TextOf(line).empty() ? at : line.next;
        line = LineAt(line.next);
    } while (line.begin < bytes_.size() && !IsSectionLine(TextOf(line)));
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
    if (!header)
        return;
    const Line behind = LineAt(header->next);
    const bool isLast = behind.begin >= bytes_.size();
    if (isLast || TextOf(behind).empty() || IsSectionLine(TextOf(behind))) {
        for (Line line = behind; line.begin < bytes_.size(); line = LineAt(line.next)) {
            if (IsSectionLine(TextOf(line)))
                break;
            if (!TextOf(line).empty())
                return;
        }
        bytes_.erase(header->begin, header->next - header->begin);
    }
}

} // namespace quillon
