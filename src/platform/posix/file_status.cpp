#include "platform/posix/file_status.h"

namespace quillon {

namespace {

std::uint64_t IdentityOf(const struct stat& status)
{
    // Devices are few and their numbers small, inodes of one device differ.
    constexpr int kAboveInodes = 44;
    return (static_cast<std::uint64_t>(status.st_dev) << kAboveInodes) ^
           static_cast<std::uint64_t>(status.st_ino);
}

} // namespace

FileStatus StatusOf(const struct stat& status)
{
    const bool isFolder = S_ISDIR(status.st_mode);
    return {.size = isFolder ? 0 : static_cast<std::uint64_t>(status.st_size),
            .modified = LocalTimeOf(status.st_mtim.tv_sec),
            .isFolder = isFolder,
            .isReadOnly = (status.st_mode & S_IWUSR) == 0,
            .identity = IdentityOf(status)};
}

LocalTime LocalTimeOf(time_t moment)
{
    tm local{};
    localtime_r(&moment, &local);
    return {.year = local.tm_year + 1900,
            .month = local.tm_mon + 1,
            .day = local.tm_mday,
            .hour = local.tm_hour,
            .minute = local.tm_min,
            .second = local.tm_sec};
}

time_t MomentOf(const LocalTime& time)
{
    tm local{};
    local.tm_year = time.year - 1900;
    local.tm_mon = time.month - 1;
    local.tm_mday = time.day;
    local.tm_hour = time.hour;
    local.tm_min = time.minute;
    local.tm_sec = time.second;
    local.tm_isdst = -1; // the time zone's rules know whether summer time held
    return mktime(&local);
}

} // namespace quillon
