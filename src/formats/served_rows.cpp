#include "formats/served_rows.h"

#include "helpers/number_text.h"
#include "project/file_rows.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::size_t kDigitsOfDate = 14;

std::optional<LocalTime> DateIn(std::string_view digits)
{
    if (digits.size() != kDigitsOfDate || !IsDigits(digits))
        return std::nullopt;
    const auto part = [&](std::size_t begin, std::size_t count) {
        return *WholeNumber<int>(digits.substr(begin, count));
    };
    return LocalTime{part(0, 4), part(4, 2), part(6, 2), part(8, 2), part(10, 2), part(12, 2)};
}

ServedRow RowOf(std::string_view word)
{
    const std::size_t mark = word.find('@');
    const auto digits = word.starts_with(kFileRowLetter)
                            ? word.substr(1, mark == word.npos ? mark : mark - 1)
                            : std::string_view();
    if (!IsDigits(digits))
        return {};
    const int number = WholeNumber<int>(digits).value_or(0);
    if (mark == word.npos)
        return {number, {}};
    const auto modified = DateIn(word.substr(mark + 1));
    return modified ? ServedRow{number, modified} : ServedRow();
}

} // namespace

std::vector<ServedRow> ServedRows(std::string_view comment)
{
    std::vector<ServedRow> rows;
    while (!comment.empty()) {
        const std::string_view word = comment.substr(0, comment.find(' '));
        comment.remove_prefix(std::min(word.size() + 1, comment.size()));
        rows.push_back(RowOf(word));
    }
    return rows;
}

Text RowWithDate(const Text& row, const LocalTime& modified)
{
    Text word = row + "@";
    for (const char letter : DateText(modified) + TimeTextWithSeconds(modified))
        if (letter >= '0' && letter <= '9')
            word += letter;
    return word;
}

} // namespace quillon
