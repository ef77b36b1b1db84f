#include "helpers/encoded_text.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace std::string_view_literals;

TEST(DecodedText, GoesByTheMarkOrTheBytes)
{
    const struct {
        std::string_view bytes;
        const char* text;
    } cases[] = {
        {""sv, ""},
        {"abc"sv, "abc"},
        {"\xE5"sv, "å"},           // Windows-1252
        {"\xC3\xA5"sv, "å"},       // UTF-8 without a mark
        {"\xC3\xA5\xE5"sv, "Ã¥å"}, // no UTF-8, so all of it is Windows-1252
        {"\xEF\xBB\xBF\xC3\xA5"sv, "å"},
        {"\xEF\xBB\xBF\xE5"sv, "å"}, // the mark is wrong
        {"\xFF\xFE\xE5\0a\0"sv, "åa"},
        {"\xFE\xFF\0\xE5\0a"sv, "åa"},
        {"\xFF\xFE"sv, ""},
        {"\xFF\xFE\xE5\0a"sv, "å"},
        {"\xFE\xFF\0\xE5\0"sv, "å"},
    };
    for (const auto& test : cases)
        EXPECT_EQ(DecodedText(test.bytes), test.text) << testing::PrintToString(test.bytes);
}

} // namespace
} // namespace quillon
