#include "rtf/rtf_writer.h"

#include <gmock/gmock.h>

namespace quillon {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

RtfText Sample()
{
    RtfText text;
    text.fonts = {{"Times New Roman", RtfFont::Family::Roman},
                  {"Courier", RtfFont::Family::Modern}};
    RtfParagraph first{.alignment = RtfParagraph::Alignment::Centre,
                       .leftIndent = 300,
                       .rightIndent = 200,
                       .firstLineIndent = -100,
                       .spaceBefore = 60,
                       .spaceAfter = 40,
                       .tabs = {720, 1440}};
    first.runs = {
        {"Åäö {\\} \t€", {.font = 0, .halfPoints = 36, .isBold = true, .foreground = 0x0000FF}},
        {"Ωμ\xF0\x9F\x98\x80\nrad",
         {.font = 1,
          .halfPoints = 20,
          .isItalic = true,
          .isUnderlined = true,
          .isStruckOut = true,
          .height = RtfStyle::Height::Superscript,
          .background = 0x00FF00}}};
    RtfParagraph second;
    second.runs = {{"slut", {}}};
    text.paragraphs = {first, RtfParagraph{}, second};
    return text;
}

TEST(WriteRtf, IsReadBackAsItWas)
{
    const RtfText text = Sample();
    const auto read = ReadRtf(WriteRtf(text));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->fault, RtfText::Fault::None);
    ASSERT_EQ(read->paragraphs.size(), 3U);
    const RtfParagraph& first = read->paragraphs[0];
    EXPECT_EQ(first.alignment, RtfParagraph::Alignment::Centre);
    EXPECT_EQ(first.leftIndent, 300);
    EXPECT_EQ(first.rightIndent, 200);
    EXPECT_EQ(first.firstLineIndent, -100);
    EXPECT_EQ(first.spaceBefore, 60);
    EXPECT_EQ(first.spaceAfter, 40);
    EXPECT_THAT(first.tabs, ElementsAre(720, 1440));
    ASSERT_EQ(first.runs.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        const RtfRun& wanted = text.paragraphs[0].runs[i];
        EXPECT_EQ(first.runs[i].text, wanted.text);
        const int font = first.runs[i].style.font;
        ASSERT_GE(font, 0);
        EXPECT_EQ(read->fonts[static_cast<std::size_t>(font)].name,
                  text.fonts[static_cast<std::size_t>(wanted.style.font)].name);
        RtfStyle style = first.runs[i].style;
        style.font = wanted.style.font;
        EXPECT_EQ(style, wanted.style);
    }
    EXPECT_THAT(read->paragraphs[1].runs, IsEmpty());
    EXPECT_EQ(read->paragraphs[2].runs[0].text, "slut");
    EXPECT_TRUE(read->paragraphs[2].tabs.empty());
}

TEST(WriteRtf, IsPlainAscii)
{
    const std::string bytes = WriteRtf(Sample());
    for (const char c : bytes)
        EXPECT_TRUE((c >= ' ' && c < 0x7F) || c == '\r' || c == '\n');
    EXPECT_TRUE(bytes.starts_with("{\\rtf1\\ansi\\ansicpg1252"));
    EXPECT_NE(bytes.find("\\'c5\\'e4\\'f6"), std::string::npos);
    EXPECT_NE(bytes.find("\\u8364?"), std::string::npos);
    EXPECT_NE(bytes.find("\\u-10179?\\u-8704?"), std::string::npos); // a surrogate pair
}

TEST(WriteRtf, OfNothingIsAWholeFile)
{
    const auto read = ReadRtf(WriteRtf({}));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->fault, RtfText::Fault::None);
}

TEST(WriteRtf, KeepsCapitalsSpacesAndHeights)
{
    for (const int spacing : {360, -300, 0})
        for (const bool isMultiple : {true, false})
            for (const auto capitals : {RtfStyle::Capitals::All, RtfStyle::Capitals::Small}) {
                RtfText text;
                text.paragraphs = {
                    {.lineSpacing = spacing,
                     .isLineSpacingMultiple = isMultiple && spacing > 0,
                     .runs = {{"a", {.capitals = capitals, .letterSpacing = -15}}, {"b", {}}}}};
                const auto read = ReadRtf(WriteRtf(text));
                ASSERT_TRUE(read);
                const RtfParagraph& paragraph = read->paragraphs.at(0);
                EXPECT_EQ(paragraph.lineSpacing, spacing);
                EXPECT_EQ(paragraph.isLineSpacingMultiple, isMultiple && spacing > 0);
                ASSERT_EQ(paragraph.runs.size(), 2U);
                EXPECT_EQ(paragraph.runs[0].style.capitals, capitals);
                EXPECT_EQ(paragraph.runs[0].style.letterSpacing, -15);
                EXPECT_EQ(paragraph.runs[1].style.capitals, RtfStyle::Capitals::AsWritten);
                EXPECT_EQ(paragraph.runs[1].style.letterSpacing, 0);
            }
}

} // namespace
} // namespace quillon
