#include "filelist/view/column_widths.h"

#include "helpers/number_text.h"

#include <algorithm>

namespace quillon {

namespace {

// Narrower, and the user can't take hold of the column any more; wider is no screen.
constexpr std::int64_t kNarrowest = 8;
constexpr std::int64_t kMaxColumnWidth = 10000;
constexpr std::int64_t kColumns = kColumnCount;

void ReadOne(std::string_view word, ColumnWidths& widths)
{
    const std::size_t colon = word.find(':');
    if (colon == std::string_view::npos)
        return;
    const std::string_view column = word.substr(0, colon);
    const std::string_view width = word.substr(colon + 1);
    if (!IsDigits(column) || !IsDigits(width) || LeadingNumber(column) >= kColumns)
        return;
    const std::int64_t pixels = LeadingNumber(width);
    if (pixels >= kNarrowest && pixels <= kMaxColumnWidth)
        widths[static_cast<Column>(LeadingNumber(column))] = static_cast<int>(pixels);
}

} // namespace

ColumnWidths ReadColumnWidths(std::string_view text)
{
    ColumnWidths widths;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        ReadOne(text.substr(0, end), widths);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return widths;
}

Text ColumnWidthsText(const ColumnWidths& widths)
{
    Text text;
    for (const auto& [column, width] : widths)
        text += (text.empty() ? "" : " ") + NumberText(static_cast<std::int64_t>(column)) + ":" +
                NumberText(width);
    return text;
}

} // namespace quillon
