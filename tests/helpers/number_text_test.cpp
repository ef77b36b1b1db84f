#include "helpers/number_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon {

TEST(NumberText, IsPlainDecimal)
{
    EXPECT_EQ(NumberText(0), "0");
    EXPECT_EQ(NumberText(1234567890123), "1234567890123");
    EXPECT_EQ(ConvertLongToString(std::numeric_limits<Long>::min()), "-2147483648");
}

TEST(LeadingNumber, StopsAtTheFirstOtherCharacter)
{
    EXPECT_EQ(LeadingNumber("1234567890"), 1234567890);
    EXPECT_EQ(LeadingNumber("9:"), 9);
    EXPECT_EQ(LeadingNumber("0"), 0);
    EXPECT_EQ(LeadingNumber("-"), 0);
    EXPECT_EQ(LeadingNumber("--7"), 0);
    EXPECT_EQ(LeadingNumber("-+7"), 0);
    EXPECT_EQ(LeadingNumber(" 7"), 0);
    EXPECT_EQ(LeadingNumber("12x"), 12);
    EXPECT_EQ(LeadingNumber("-7"), -7);
    EXPECT_EQ(LeadingNumber("+7"), 0);
    EXPECT_EQ(LeadingNumber("- 7"), 0);
    EXPECT_EQ(LeadingNumber(""), 0);
    EXPECT_EQ(LeadingNumber("0x10"), 0);
    EXPECT_GT(LeadingNumber("99999999999999999999"), 1'000'000'000'000);
    EXPECT_LT(LeadingNumber("-99999999999999999999"), -1'000'000'000'000);
}

TEST(FloatingNumber, TakesTheGivenDecimalSignAlone)
{
    EXPECT_EQ(FloatingNumber("10,5", ','), 10.5);
    EXPECT_EQ(FloatingNumber(" -3 ", ','), -3.0);
    EXPECT_EQ(FloatingNumber("+3", ','), 3.0);
    EXPECT_EQ(FloatingNumber("10.5", ','), std::nullopt);
    EXPECT_EQ(FloatingNumber("", ','), std::nullopt);
    EXPECT_EQ(FloatingNumber("1,2,3", ','), std::nullopt);
    EXPECT_EQ(FloatingNumber("inf", ','), std::nullopt);
}

TEST(FormatNumber, PrintsTheDecimalSignOfTheLocale)
{
    EXPECT_EQ(FormatNumber(10.25, "0.0", ','), "10,3");
    EXPECT_EQ(FormatNumber(10.25, "0.0", '.'), "10.3");
    EXPECT_EQ(FormatNumber(0.04, "0.0", '.'), "0.0");
    EXPECT_EQ(FormatNumber(-0.04, "0.0", '.'), "0.0");
    EXPECT_EQ(FormatNumber(-1.5, "0.0", '.'), "-1.5");
    EXPECT_EQ(FormatNumber(0.99, "0.0", '.'), "1.0");
}

TEST(FormatNumber, AlwaysPrintsTheBlanksOfAPattern)
{
    EXPECT_EQ(FormatNumber(30, "## ##0.0", '.'), " 30.0");
    EXPECT_EQ(FormatNumber(0, "## ##0.0", '.'), " 0.0");
    EXPECT_EQ(FormatNumber(1234, "## ##0.0", ','), "1 234,0");
    EXPECT_EQ(FormatNumber(5, "### ### ###", '.'), "  5");
    EXPECT_EQ(FormatNumber(0, "### ### ###", '.'), "  ");
    EXPECT_EQ(FormatNumber(1234567, "### ### ###", '.'), "1 234 567");
}

TEST(FormatNumber, PutsExtraDigitsBeforeTheFirstPlaceholder)
{
    EXPECT_EQ(FormatNumber(1234567, "## ##0.0", ','), "1234 567,0");
    EXPECT_EQ(FormatNumber(12345678901, "### ### ###", '.'), "12345 678 901");
}

TEST(RoundToEven, SendsHalvesToTheEvenNeighbour)
{
    EXPECT_EQ(RoundToEven(0.5), 0);
    EXPECT_EQ(RoundToEven(1.5), 2);
    EXPECT_EQ(RoundToEven(2.5), 2);
    EXPECT_EQ(RoundToEven(-0.5), 0);
    EXPECT_EQ(RoundToEven(-1.5), -2);
    EXPECT_EQ(RoundToEven(30.5), 30);
    EXPECT_EQ(RoundToEven(30.51), 31);
}

} // namespace quillon
