#include "cli/row_pattern.h"

#include "cli/call_context.h"
#include "helpers/ansi_text.h"
#include "helpers/number_text.h"

#include <algorithm>

namespace quillon::cli {

namespace {

constexpr std::string_view kNamePrefix = "name:";

struct Range {
    std::int64_t first;
    std::int64_t last;
};

// "3" or "2-5"; nothing where it is neither.
std::optional<Range> RangeIn(std::string_view text)
{
    const std::size_t dash = text.find('-');
    const std::string_view first = text.substr(0, dash);
    const std::string_view last = dash == std::string_view::npos ? first : text.substr(dash + 1);
    if (!IsDigits(first) || !IsDigits(last))
        return std::nullopt;
    return Range{LeadingNumber(first), LeadingNumber(last)};
}

// Nothing where the pattern is a name.
std::optional<std::vector<Range>> RangesIn(std::string_view pattern)
{
    std::vector<Range> ranges;
    for (std::size_t position = 0; position <= pattern.size();) {
        const std::size_t end = std::min(pattern.find(',', position), pattern.size());
        const auto range = RangeIn(pattern.substr(position, end - position));
        if (!range)
            return std::nullopt;
        ranges.push_back(*range);
        position = end + 1;
    }
    return ranges;
}

void SelectRange(const Range& range, const std::string& pattern, std::vector<bool>& selected)
{
    if (range.first < 1 || range.last < range.first)
        throw UsageError{"'" + pattern +
                         "' är inga radnummer; de räknas från 1, det minsta först."};
    if (range.last > static_cast<std::int64_t>(selected.size()))
        throw CallFailure{"Raden " + NumberText(range.last) + " finns inte; fillistan har " +
                              NumberText(static_cast<std::int64_t>(selected.size())) + " rader.",
                          Exit::Stopped};
    for (std::int64_t number = range.first; number <= range.last; ++number)
        selected[static_cast<std::size_t>(number) - 1] = true;
}

bool SelectNames(const FileList& files, std::string_view name, std::vector<bool>& selected)
{
    // A project holds no such name, and '?' in place of a character would select others.
    if (!AnsiText::Holds(name))
        return false;
    const std::string wanted = AnsiText::ToBytes(LowerCase(name));
    bool any = false;
    for (std::size_t i = 0; i < files.rows.size(); ++i)
        if (FitsWildcards(AnsiText::ToBytes(LowerCase(files.rows[i][Filename])), wanted))
            selected[i] = any = true;
    return any;
}

void SelectBy(const std::string& pattern, const FileList& files, std::vector<bool>& selected)
{
    if (const auto ranges = RangesIn(pattern)) {
        for (const Range& range : *ranges)
            SelectRange(range, pattern, selected);
        return;
    }
    std::string_view name = pattern;
    if (name.starts_with(kNamePrefix))
        name.remove_prefix(kNamePrefix.size());
    if (!SelectNames(files, name, selected))
        throw CallFailure{"Ingen rad i fillistan har ett namn som '" + Text(name) + "'.",
                          Exit::Stopped};
}

} // namespace

std::vector<std::size_t> SelectRows(const FileList& files, std::span<const std::string> patterns)
{
    std::vector<bool> selected(files.rows.size());
    for (const std::string& pattern : patterns)
        SelectBy(pattern, files, selected);
    std::vector<std::size_t> rows;
    for (std::size_t i = 0; i < selected.size(); ++i)
        if (selected[i])
            rows.push_back(i);
    return rows;
}

bool FitsWildcards(std::string_view name, std::string_view pattern)
{
    std::size_t at = 0;
    std::size_t in = 0;
    // Where to go on when the last "*" takes one character more.
    std::size_t afterStar = std::string_view::npos;
    std::size_t starEnd = 0;
    while (at < name.size()) {
        if (in < pattern.size() && pattern[in] == '*') {
            afterStar = ++in;
            starEnd = at;
        } else if (in < pattern.size() && (pattern[in] == '?' || pattern[in] == name[at])) {
            ++in;
            ++at;
        } else if (afterStar != std::string_view::npos) {
            in = afterStar;
            at = ++starEnd;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', in) == std::string_view::npos;
}

} // namespace quillon::cli
