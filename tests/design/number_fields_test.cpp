#include "design/number_fields.h"

#include "design/font_description.h"
#include "design/transparent_colours.h"

#include <gtest/gtest.h>

#include <functional>

namespace quillon {
namespace {

struct Entry {
    const char* entry;
    const char* result;
};

void ExpectAll(std::initializer_list<Entry> entries, const std::function<Text(const Text&)>& check)
{
    for (const Entry& e : entries)
        EXPECT_EQ(check(e.entry), e.result) << e.entry;
}

TEST(CheckedCharInterSpace, StaysBetweenMinus10And100)
{
    ExpectAll(
        {{"", "0"}, {"-11", "-10"}, {"-10", "-10"}, {"101", "100"}, {"100", "100"}, {"7", "7"}},
        CheckedCharInterSpace);
    // A text that is no number is refused, and what follows a number is dropped.
    ExpectAll({{"abc", "0"}, {"60abc", "60"}, {"-3x", "-3"}, {"-", "0"}, {"007", "7"}},
              CheckedCharInterSpace);
}

TEST(CheckedUnderlineHeight, DependsOnTheKind)
{
    for (const UnderlineKind kind :
         {UnderlineKind::None, UnderlineKind::Simple, UnderlineKind::Blended})
        ExpectAll({{"", "3"}, {"0", "3"}, {"3", "3"}, {"4", "4"}, {"50", "50"}, {"51", "50"}},
                  [=](const Text& entry) { return CheckedUnderlineHeight(entry, kind); });
    EXPECT_EQ(CheckedUnderlineHeight("12px", UnderlineKind::Simple), "12");
    ExpectAll({{"", "3"}, {"3", "10"}, {"9", "10"}, {"10", "10"}, {"50", "50"}, {"51", "50"}},
              [](const Text& e) { return CheckedUnderlineHeight(e, UnderlineKind::Misty); });
}

TEST(UnderlineHeightToEdit, IsAtLeastThree)
{
    EXPECT_EQ(UnderlineHeightToEdit(0), 3);
    EXPECT_EQ(UnderlineHeightToEdit(2), 3);
    EXPECT_EQ(UnderlineHeightToEdit(4), 4);
}

TEST(ChoiceOf, SwitchesColoursAndHeights)
{
    const UnderlineChoice none = ChoiceOf(UnderlineKind::None);
    EXPECT_FALSE(none.takesColor1 || none.takesColor2 || none.minHeight || none.height);
    const UnderlineChoice simple = ChoiceOf(UnderlineKind::Simple);
    EXPECT_TRUE(simple.takesColor1 && !simple.takesColor2);
    EXPECT_EQ(simple.minHeight, 3);
    EXPECT_EQ(simple.height, 3);
    const UnderlineChoice misty = ChoiceOf(UnderlineKind::Misty);
    EXPECT_TRUE(misty.takesColor1 && misty.takesColor2);
    EXPECT_EQ(misty.minHeight, 10);
    EXPECT_EQ(misty.height, 10);
    const UnderlineChoice blended = ChoiceOf(UnderlineKind::Blended);
    EXPECT_TRUE(blended.takesColor1 && blended.takesColor2);
    EXPECT_EQ(blended.minHeight, 3);
    EXPECT_EQ(blended.height, 4);
}

TEST(CheckedTextBoxSize, FitsTheSurface)
{
    ExpectAll({{"", "50"}, {"49", "50"}, {"50", "50"}, {"400", "400"}, {"401", "400"}},
              [](const Text& entry) { return CheckedTextBoxSize(entry, 400); });
    // Kept: the limit of the surface counts most.
    EXPECT_EQ(CheckedTextBoxSize("10", 30), "30");
}

TEST(CheckedRTFboxHeight, IsLimitedBesidesTheSurface)
{
    ExpectAll({{"", "50"}, {"49", "50"}, {"1000", "1000"}, {"1001", "1000"}},
              [](const Text& entry) { return CheckedRTFboxHeight(entry, 2000); });
    EXPECT_EQ(CheckedRTFboxHeight("1001", 700), "700");
}

TEST(CheckedRTFboxWidth, IsLimitedByTheSurfaceAlone)
{
    ExpectAll({{"", "100"}, {"99", "100"}, {"1800", "1800"}, {"2001", "2000"}},
              [](const Text& entry) { return CheckedRTFboxWidth(entry, 2000); });
}

TEST(CheckedPictureSize, StaysBetween10And2000)
{
    ExpectAll({{"", "10"},
               {"9", "10"},
               {"10", "10"},
               {"2000", "2000"},
               {"2001", "2000"},
               {"60abc", "60"},
               {"abc", "10"}},
              CheckedPictureSize);
}

TEST(CheckedIntervalSeconds, IsAtLeastOneAndFitsTheRecord)
{
    ExpectAll({{"", "1"}, {"0", "1"}, {"1", "1"}, {"32767", "32767"}, {"99999", "32767"}},
              CheckedIntervalSeconds);
}

TEST(CheckedLogotypeSize, FallsBackToTheDefault)
{
    ExpectAll({{"", "50"},
               {"0", "50"},
               {"1", "1"},
               {"600", "600"},
               {"601", "50"},
               {"x", "50"},
               {"60x", "60"}},
              CheckedLogotypeWMFHeight);
    ExpectAll({{"", "100"}, {"0", "100"}, {"1", "1"}, {"800", "800"}, {"801", "100"}},
              CheckedLogotypeWMFWidth);
}

TEST(FontDescription, NamesWeightAndSlant)
{
    EXPECT_EQ(FontDescription("Times New Roman", 26, kOn, kOn),
              "Times New Roman, 26 pt, fet, kursiv");
    EXPECT_EQ(FontDescription("Arial", 9, kOff, kOff), "Arial, 9 pt, ej fet, ej kursiv");
}

TEST(TransparentColorNames, BeginWithYellowAndOfferBlack)
{
    EXPECT_EQ(std::size(kTransparentColorNames), 12U);
    EXPECT_STREQ(kTransparentColorNames[0], "Gul");
    EXPECT_STREQ(kTransparentColorNames[kDefaultTransparentColor], "Svart");
    EXPECT_STREQ(kTransparentColorNames[11], "Vit");
}

} // namespace
} // namespace quillon
