#include "helpers/little_endian.h"

#include <string>
#include <vector>

namespace quillon {
namespace {

TEST(LittleEndian, AppendsAsManyBytesAsTheTypeHas)
{
    std::string text = "x";
    AppendNumber(text, std::uint16_t{0x8182});
    AppendNumber(text, std::uint32_t{0x01020304});
    EXPECT_EQ(text, "x\x82\x81\x04\x03\x02\x01");
    std::vector<std::byte> bytes;
    AppendNumber(bytes, std::uint8_t{7});
    AppendNumber(bytes, std::uint64_t{0xFF00000000000008});
    const std::vector<std::byte> expected{std::byte{7}, std::byte{8},   {}, {}, {}, {}, {},
                                          {},           std::byte{0xFF}};
    EXPECT_EQ(bytes, expected);
}

TEST(LittleEndian, WritesOverWhatIsThere)
{
    std::string bytes = "abcdef";
    SetNumber(bytes, 1, std::uint16_t{0xE5E4});
    EXPECT_EQ(bytes, "a\xE4\xE5"
                     "def");
}

TEST(LittleEndian, ReadsUnsignedNumbers)
{
    constexpr std::string_view kBytes = "x\xFE\xFF\x80\x81";
    EXPECT_EQ(ShortAt(kBytes, 1), 0xFFFE);
    EXPECT_EQ(LongAt(kBytes, 1), 0x8180FFFEU);
}

} // namespace
} // namespace quillon
