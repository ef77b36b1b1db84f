#include "helpers/number_text.h"

#include <limits>

namespace quillon {

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
    const bool negative = text.starts_with('-');
    text.remove_prefix(negative ? 1 : 0);
    if (text.starts_with('-'))
        return 0; // the conversion below would take this sign too
    std::int64_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec == std::errc::result_out_of_range)
        number = std::numeric_limits<std::int64_t>::max();
    return negative ? -number : number;
}

} // namespace quillon
