#include "actions/unsavable_line.h"

#include "helpers/product.h"
#include "project/list_sections.h"

#include <algorithm>
#include <iterator>

namespace quillon {

namespace {

// Sections between and behind the lists; those in front of them are found first.
constexpr std::string_view kLaterSections[] = {"Configuration", "RegisterFiles", "FileComponents",
                                               "FileListInfo", "FileList"};

bool IsHeaderOf(std::string_view line, std::string_view section)
{
    return line.starts_with('[') && line.ends_with(']') &&
           EqualIgnoreCase(line.substr(1, line.size() - 2), section);
}

bool IsMark(std::string_view line)
{
    const auto isHeader = [&](std::string_view section) { return IsHeaderOf(line, section); };
    return line == kEndOfList ||
           std::any_of(std::begin(kListSections), std::end(kListSections),
                       [&](const ListSection& list) { return isHeader(list.name); }) ||
           std::any_of(std::begin(kLaterSections), std::end(kLaterSections), isHeader);
}

} // namespace

std::optional<Text> FindUnsavableLine(std::string_view list)
{
    for (const Text& line : SplitLines(list))
        if (IsMark(line))
            return line;
    return std::nullopt;
}

Text UnsavableLineWarning(const Text& line)
{
    return "Raden '" + line +
           "' har en egen betydelse i projektfilen. Det som står från och med den raden kan gå "
           "förlorat när projektet öppnas igen.";
}

} // namespace quillon
