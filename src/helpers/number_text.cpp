#include "helpers/number_text.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace quillon {

namespace {

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

} // namespace

Text NumberText(std::int64_t number)
{
    return std::to_string(number);
}

Text ConvertLongToString(Long number)
{
    return NumberText(number);
}

std::int64_t LeadingNumber(std::string_view text)
{
    const bool negative = !text.empty() && text.front() == '-';
    if (negative)
        text.remove_prefix(1);
    const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
    std::int64_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + (end - text.begin()), number);
    if (read.ec == std::errc::result_out_of_range)
        number = std::numeric_limits<std::int64_t>::max();
    return negative ? -number : number;
}

} // namespace quillon
