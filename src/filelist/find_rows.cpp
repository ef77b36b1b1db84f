#include "filelist/find_rows.h"

#include <algorithm>

namespace quillon {

namespace {

std::vector<std::size_t> RowsWith(const FileList& list, const Text& text,
                                  std::span<const Column> columns)
{
    const Text lower = LowerCase(text);
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < list.rows.size(); ++row)
        if (std::ranges::any_of(columns, [&](Column column) {
                const Text& field = list.rows[row][column];
                return field.size() >= lower.size() && ContainsText(LowerCase(field), lower);
            }))
            rows.push_back(row);
    return rows;
}

} // namespace

std::optional<FoundRow> FindRow(const FileList& list, const Text& text,
                                std::span<const Column> columns, std::size_t from, FindStep step)
{
    const std::vector<std::size_t> rows =
        text.empty() ? std::vector<std::size_t>() : RowsWith(list, text, columns);
    if (rows.empty())
        return std::nullopt;
    std::size_t place = 0;
    if (step == FindStep::Previous) {
        const auto behind = std::ranges::lower_bound(rows, from);
        place = static_cast<std::size_t>(behind - rows.begin()) + rows.size() - 1;
    } else {
        const auto found = step == FindStep::Here ? std::ranges::lower_bound(rows, from)
                                                  : std::ranges::upper_bound(rows, from);
        place = static_cast<std::size_t>(found - rows.begin());
    }
    place %= rows.size();
    return FoundRow{.row = rows[place], .place = place + 1, .count = rows.size()};
}

} // namespace quillon
