#include "ini/profile_lines.h"

#include "helpers/ansi_text.h"

#include <algorithm>
#include <cstdint>

namespace quillon {

namespace {

using ByteTable = std::array<char, 256>;

ByteTable MakeLowerCaseTable()
{
    ByteTable table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const char byte = static_cast<char>(i);
        const Text letter = AnsiText::FromBytes(std::string_view(&byte, 1));
        table[i] = AnsiText::ToBytes(LowerCase(letter)).front();
    }
    return table;
}

const ByteTable& LowerCaseTable()
{
    static const ByteTable kTable = MakeLowerCaseTable();
    return kTable;
}

bool IsBlank(char byte)
{
    return byte == ' ' || byte == '\t';
}

std::string_view WithoutBlanks(std::string_view bytes)
{
    while (!bytes.empty() && IsBlank(bytes.front()))
        bytes.remove_prefix(1);
    while (!bytes.empty() && IsBlank(bytes.back()))
        bytes.remove_suffix(1);
    return bytes;
}

} // namespace

ProfileLine ProfileLineAt(std::string_view bytes, std::size_t begin)
{
    const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
    const std::size_t next = std::min(end + 1, bytes.size());
    std::string_view text = bytes.substr(begin, end - begin);
    if (!text.empty() && text.back() == '\r')
        text.remove_suffix(1);
    return {text, begin, next};
}

std::optional<std::string_view> SectionNameOfLine(std::string_view line)
{
    line = WithoutBlanks(line);
    if (!line.starts_with('['))
        return std::nullopt;
    const std::size_t close = line.rfind(']');
    if (close == std::string_view::npos)
        return std::nullopt;
    return line.substr(1, close - 1);
}

std::optional<ProfileEntry> EntryOfLine(std::string_view line)
{
    const std::size_t sign = line.find('=');
    if (sign == std::string_view::npos)
        return std::nullopt;
    return ProfileEntry{WithoutBlanks(line.substr(0, sign)), WithoutBlanks(line.substr(sign + 1))};
}

std::string FoldedName(std::string_view bytes)
{
    const ByteTable& lowerCase = LowerCaseTable();
    std::string folded(bytes);
    for (char& byte : folded)
        byte = lowerCase[static_cast<unsigned char>(byte)];
    return folded;
}

bool EqualFolded(std::string_view left, std::string_view right)
{
    const ByteTable& lowerCase = LowerCaseTable();
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [&](char a, char b) {
        return lowerCase[static_cast<unsigned char>(a)] == lowerCase[static_cast<unsigned char>(b)];
    });
}

// FNV-1a.
std::size_t FoldedHash(std::string_view bytes)
{
    const ByteTable& lowerCase = LowerCaseTable();
    std::uint32_t hash = 2166136261U;
    for (const char byte : bytes)
        hash = (hash ^ static_cast<unsigned char>(lowerCase[static_cast<unsigned char>(byte)])) *
               16777619U;
    return hash;
}

std::string_view BareValue(std::string_view bytes)
{
    bytes = WithoutBlanks(bytes);
    const bool isQuoted = bytes.size() >= 2 && bytes.front() == bytes.back() &&
                          (bytes.front() == '"' || bytes.front() == '\'');
    return isQuoted ? bytes.substr(1, bytes.size() - 2) : bytes;
}

ProfileSections::ProfileSections(std::string_view bytes)
{
    Range shadowed; // takes the end of a section whose name came before
    Range* open = &shadowed;
    for (std::size_t position = 0; position < bytes.size();) {
        const ProfileLine line = ProfileLineAt(bytes, position);
        position = line.next;
        const auto name = SectionNameOfLine(line.text);
        if (!name)
            continue;
        open->end = line.begin;
        const auto [place, isFirst] = ranges_.try_emplace(FoldedName(*name));
        open = isFirst ? &place->second : &shadowed;
        open->begin = line.next;
    }
    open->end = bytes.size();
}

std::optional<ProfileSections::Range> ProfileSections::Find(std::string_view name) const
{
    const auto found = ranges_.find(FoldedName(name));
    return found == ranges_.end() ? std::nullopt : std::optional(found->second);
}

} // namespace quillon
