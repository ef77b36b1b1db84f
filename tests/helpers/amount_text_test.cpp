#include "helpers/amount_text.h"

#include <gtest/gtest.h>

#include <utility>

namespace quillon {
namespace {

TEST(SizeText, CountsInUnitsThatCanBeRead)
{
    const std::pair<std::uint64_t, const char*> cases[] = {
        {0, "0 kB"},
        {812, "812 kB"},
        {1024, "1 024 kB"},
        {9999, "9 999 kB"},
        {10240, "10,0 MB"},
        {123456, "120,6 MB"},
        {1048576, "1 024,0 MB"},
        {10240000, "9,8 GB"},
        {1073741824, "1 024,0 GB"},
    };
    for (const auto& [kilobytes, text] : cases)
        EXPECT_EQ(SizeText(kilobytes, ','), text) << kilobytes;
}

TEST(DurationText, CountsInSecondsAndMinutes)
{
    const std::pair<std::int64_t, const char*> cases[] = {
        {0, "mindre än 1 s"}, {499, "mindre än 1 s"}, {500, "1 s"},
        {59'499, "59 s"},     {59'500, "1 min 0 s"},  {64'000, "1 min 4 s"},
    };
    for (const auto& [milliseconds, text] : cases)
        EXPECT_EQ(DurationText(milliseconds), text) << milliseconds;
}

} // namespace
} // namespace quillon
