#include "ini/ini_text.h"

#include <gtest/gtest.h>

namespace quillon {

constexpr const char* kFile = "; head\r\n[A]\r\nx=1\r\n\r\n[B]\r\n y = 2 \r\n";

TEST(IniText, FindsValuesWithoutRegardToCase)
{
    const IniText ini(kFile);
    EXPECT_EQ(ini.Value("a", "X"), "1");
    EXPECT_EQ(ini.Value("B", "Y"), "2");
    EXPECT_EQ(ini.Value("A", "y"), std::nullopt);
    EXPECT_EQ(ini.Value("C", "x"), std::nullopt);
    EXPECT_TRUE(ini.HasSection("b"));
    EXPECT_FALSE(ini.HasSection("c"));
}

struct SetCase {
    const char* before;
    const char* section;
    const char* after;
};
class SetValueOfIni : public testing::TestWithParam<SetCase> {};

TEST_P(SetValueOfIni, LeavesTheRestAlone)
{
    IniText ini(GetParam().before);
    ini.SetValue(GetParam().section, "n", "v");
    EXPECT_EQ(ini.Bytes(), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(, SetValueOfIni,
                         testing::Values(SetCase{"", "A", "[A]\r\nn=v\r\n"},
                                         SetCase{"[A]\r\nN = old\r\nz=1", "a", "[A]\r\nn=v\r\nz=1"},
                                         SetCase{"[A]\r\nx=1\r\n\r\n[B]\r\n", "A",
                                                 "[A]\r\nx=1\r\nn=v\r\n\r\n[B]\r\n"},
                                         SetCase{"[A]\r\nx=1", "A", "[A]\r\nx=1\r\nn=v\r\n"},
                                         SetCase{"[A]\r\n", "B", "[A]\r\n[B]\r\nn=v\r\n"},
                                         SetCase{"[A]\nx=1\n[B]\n", "A", "[A]\nx=1\nn=v\r\n[B]\n"},
                                         SetCase{"[A]\r\n;n=1\r\n[A]\r\nn=2\r\n", "A",
                                                 "[A]\r\n;n=1\r\nn=v\r\n[A]\r\nn=2\r\n"}));

TEST(IniText, GoesBackToTheSameBytes)
{
    IniText ini(kFile);
    ini.SetValue("A", "new", "1");
    ini.SetValue("C", "new", "2");
    ini.MakeSection("D");
    EXPECT_NE(ini.Bytes(), kFile);
    ini.RemoveEmptySection("D");
    ini.RemoveValue("C", "new");
    ini.RemoveEmptySection("C");
    ini.RemoveValue("A", "new");
    EXPECT_EQ(ini.Bytes(), kFile);
}

TEST(IniText, KeepsASectionThatHoldsSomething)
{
    IniText ini("[A]\r\n\r\n; comment\r\n[B]\r\n\r\n");
    ini.RemoveEmptySection("A");
    EXPECT_TRUE(ini.HasSection("A"));
    ini.RemoveEmptySection("B");
    EXPECT_FALSE(ini.HasSection("B"));
}

} // namespace quillon
