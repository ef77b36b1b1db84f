#include "formats/served_rows.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr LocalTime kTime{2004, 2, 29, 12, 30, 58};

TEST(ServedRows, HaveADateOfTheirOwnWhereTheEntryHasAnother)
{
    const std::pair<const char*, std::vector<ServedRow>> cases[] = {
        {"", {}},
        {"F1", {{1, {}}}},
        {"F1 F7@20040229123058", {{1, {}}, {7, kTime}}},
        {"F7@20040229123058 F8", {{7, kTime}, {8, {}}}},
        {"F7@2004022912305", {{0, {}}}},
        {"F7@200402291230588", {{0, {}}}},
        {"F7@2004022912305x", {{0, {}}}},
        {"F7@", {{0, {}}}},
        {"F@20040229123058", {{0, {}}}},
        {"F-7", {{0, {}}}},
        {"@20040229123058", {{0, {}}}},
    };
    for (const auto& [comment, rows] : cases)
        EXPECT_EQ(ServedRows(comment), rows) << comment;
}

TEST(ServedRows, AreWrittenAsTheyAreRead)
{
    EXPECT_EQ(RowWithDate("F7", kTime), "F7@20040229123058");
    EXPECT_EQ(ServedRows(RowWithDate("F32767", {1980, 1, 1, 0, 0, 0})),
              (std::vector<ServedRow>{{32767, LocalTime{1980, 1, 1, 0, 0, 0}}}));
}

} // namespace
} // namespace quillon
