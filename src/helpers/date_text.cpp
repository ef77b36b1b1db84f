#include "helpers/date_text.h"

#include "helpers/number_text.h"

namespace quillon {

namespace {

Text TwoDigits(int number)
{
    return (number < 10 ? "0" : "") + NumberText(number);
}

} // namespace

Text DateText(const LocalTime& time)
{
    Text year = NumberText(time.year);
    if (year.size() < 4)
        year.insert(0, 4 - year.size(), '0');
    return year + "-" + TwoDigits(time.month) + "-" + TwoDigits(time.day);
}

Text TimeText(const LocalTime& time)
{
    return TwoDigits(time.hour) + ":" + TwoDigits(time.minute);
}

Text TimeTextWithSeconds(const LocalTime& time)
{
    return TimeText(time) + ":" + TwoDigits(time.second);
}

} // namespace quillon
