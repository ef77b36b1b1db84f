#include "project/list_sections.h"

#include "helpers/ansi_text.h"
#include "helpers/product.h"
#include "platform/run_error.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace quillon {

namespace {

constexpr std::string_view kLineMark = ">";
// The INI list is cut into lines by a 16-bit position.
constexpr std::size_t kMaxMarkedTextLength = 32767;

bool NamesSameFlagSection(const ListSection& left, const ListSection& right)
{
    return left.flagSection && right.flagSection &&
           std::string_view(left.flagSection) == right.flagSection;
}

// The flags of several lists are in one section, before the first of these lists.
void WriteFlags(AnsiTextFile& file, const section::Lists& lists, const ListSection& first)
{
    file.Line(Text("[") + first.flagSection + "]");
    for (const ListSection& list : kListSections)
        if (NamesSameFlagSection(list, first))
            file.Line(Text(list.flag) + " = " + ((lists.*list.text).empty() ? "0" : "1"));
    file.Line();
}

bool IsFirstOfItsFlagSection(const ListSection& list)
{
    const auto sameFlags = [&](const ListSection& other) {
        return NamesSameFlagSection(other, list);
    };
    return list.flagSection &&
           &list == std::find_if(std::begin(kListSections), std::end(kListSections), sameFlags);
}

void WriteMarkedLines(AnsiTextFile& file, const Text& text)
{
    const std::string bytes = AnsiText::ToBytes(text);
    if (bytes.size() > kMaxMarkedTextLength)
        throw RunError(ErrorNumber::kOverflow);
    for (std::size_t position = 0; position < bytes.size();) {
        const std::size_t end = std::min(bytes.find(kLineBreak, position), bytes.size());
        file.Line(Text(kLineMark) + AnsiText::FromBytes(bytes.substr(position, end - position)));
        position = end + kLineBreak.size();
    }
}

} // namespace

void WriteListSections(AnsiTextFile& file, const section::Lists& lists)
{
    for (const ListSection& list : kListSections) {
        if (IsFirstOfItsFlagSection(list))
            WriteFlags(file, lists, list);
        file.Line(Text("[") + list.name + "]");
        if (list.lines == ListSection::Lines::Marked)
            WriteMarkedLines(file, lists.*list.text);
        else
            file.Line(lists.*list.text);
        file.Line(kEndOfList);
        file.Line();
    }
}

bool ListLines::FindSection(std::string_view name)
{
    const std::string header = std::string("[").append(name).append("]");
    position_ = 0;
    for (std::size_t hit = bytes_.find(header); hit != std::string_view::npos;
         hit = bytes_.find(header, hit + 1)) {
        const std::string_view before = bytes_.substr(0, hit);
        position_ = hit;
        if ((before.empty() || before.ends_with(kLineBreak)) && Next() == header)
            return true;
    }
    return false;
}

std::optional<std::string_view> ListLines::Next()
{
    if (position_ >= bytes_.size())
        return std::nullopt;
    const std::size_t end = std::min(bytes_.find(kLineBreak, position_), bytes_.size());
    const std::string_view line = bytes_.substr(position_, end - position_);
    position_ = end + kLineBreak.size();
    return line;
}

bool ReadTextList(ListLines& lines, const ListSection& list, Text& text)
{
    const std::size_t markLength = list.lines == ListSection::Lines::Marked ? kLineMark.size() : 0;
    std::string bytes;
    bool isFirst = true;
    auto line = lines.Next();
    for (; line && *line != kEndOfList; line = lines.Next()) {
        if (!isFirst)
            bytes.append(kLineBreak);
        isFirst = false;
        bytes.append(line->substr(std::min(markLength, line->size())));
    }
    text = AnsiText::FromBytes(bytes);
    return line.has_value();
}

} // namespace quillon
