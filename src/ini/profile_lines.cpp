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

} // namespace

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

// The hash FNV-1a.
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
    IniScanner lines(bytes, kProfileSyntax);
    while (const auto line = lines.Next()) {
        if (line->kind != ScannedLine::Kind::Header)
            continue;
        open->end = line->begin;
        const auto [place, isFirst] = ranges_.try_emplace(FoldedName(line->name));
        open = isFirst ? &place->second : &shadowed;
        open->begin = line->next;
    }
    open->end = bytes.size();
}

std::optional<ProfileSections::Range> ProfileSections::Find(std::string_view name) const
{
    const auto found = ranges_.find(FoldedName(name));
    return found == ranges_.end() ? std::nullopt : std::optional(found->second);
}

} // namespace quillon
