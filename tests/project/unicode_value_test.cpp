#include "project/unicode_value.h"

#include "helpers/ansi_text.h"
#include "ini/profile_reader.h"
#include "ini/profile_writer.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr int kLimit = 100;

/// What comes back through the bytes of a profile file.
Text RoundTrip(const Text& value)
{
    std::string bytes;
    SetProfileValue(bytes, "S", "K", UnicodeValueOnFile(value, kLimit));
    ProfileReader reader;
    reader.SetIniBytes(bytes);
    reader.SetIniSection("S");
    return UnicodeValueFromFile(reader.ReadIniString("K", kLimit));
}

TEST(UnicodeValue, ComesBackAsItWas)
{
    for (const Text& value : std::initializer_list<Text>{
             "", "C:\\a.qnp", "C:\\日本\\a.qnp", "utf-8:", "utf-8:C:\\a.qnp", "utf-8:C:\\日本.qnp",
             " C:\\a.qnp", "C:\\a.qnp ", "\tå\t", " 日本 ", "\"a\"", "'a'", "\"日本\"", "\"\"a\"\"",
             " \"a\" ", "\"", "'", "\"a'", " "})
        EXPECT_EQ(RoundTrip(value), value) << "'" << value << "'";
}

TEST(UnicodeValue, StandsPlainWhereNothingHappensToIt)
{
    EXPECT_EQ(UnicodeValueOnFile("C:\\å.qnp", kLimit), "C:\\å.qnp");
    EXPECT_EQ(UnicodeValueOnFile("\"a' b", kLimit), "\"a' b");
    EXPECT_EQ(AnsiText::ToBytes(UnicodeValueOnFile("Ω", kLimit)), "utf-8:Ω");
    EXPECT_EQ(UnicodeValueOnFile(" a", kLimit), "\" a\"");
}

TEST(UnicodeValue, IsEmptyWhereItWouldComeBackAsAnotherOne)
{
    EXPECT_EQ(UnicodeValueOnFile("a\r\nb", kLimit), "");
    EXPECT_EQ(UnicodeValueOnFile(Text(kLimit, 'x') + "Ω", kLimit), "");
    EXPECT_EQ(UnicodeValueOnFile(" " + Text(kLimit - 3, 'x'), kLimit), "")
        << "with its quotation marks it is too long";
    EXPECT_EQ(UnicodeValueOnFile(Text(kLimit - 1, 'x'), kLimit), Text(kLimit - 1, 'x'));
    EXPECT_EQ(UnicodeValueOnFile(Text(kLimit, 'x'), kLimit), "") << "it would come back cut";
    EXPECT_EQ(UnicodeValueFromFile(AnsiText::FromBytes("utf-8:\xD0")), "");
}

} // namespace
} // namespace quillon
