#include "platform/win32/win_time.h"

namespace quillon {

LocalTime LocalTimeOf(const SYSTEMTIME& local)
{
    return {.year = local.wYear,
            .month = local.wMonth,
            .day = local.wDay,
            .hour = local.wHour,
            .minute = local.wMinute,
            .second = local.wSecond};
}

LocalTime LocalTimeOf(const FILETIME& moment)
{
    // FileTimeToLocalFileTime would take today's summer time for a day in winter.
    SYSTEMTIME utc{};
    SYSTEMTIME local{};
    FileTimeToSystemTime(&moment, &utc);
    SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
    return LocalTimeOf(local);
}

FILETIME MomentOf(const LocalTime& time)
{
    SYSTEMTIME local{};
    local.wYear = static_cast<WORD>(time.year);
    local.wMonth = static_cast<WORD>(time.month);
    local.wDay = static_cast<WORD>(time.day);
    local.wHour = static_cast<WORD>(time.hour);
    local.wMinute = static_cast<WORD>(time.minute);
    local.wSecond = static_cast<WORD>(time.second);
    SYSTEMTIME utc{};
    FILETIME moment{};
    TzSpecificLocalTimeToSystemTime(nullptr, &local, &utc);
    SystemTimeToFileTime(&utc, &moment);
    return moment;
}

} // namespace quillon
