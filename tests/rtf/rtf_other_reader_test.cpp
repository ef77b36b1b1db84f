// What the writer makes is read alike by a program that others wrote.
#include "rtf/rtf_writer.h"

#include "support/run_program.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

namespace quillon {
namespace {

using testing::HasSubstr;
using testing::Not;

/// The text as unrtf turns it into HTML.
std::string AsHtml(const RtfText& text)
{
    const test::TempFolder disk;
    disk.Put("a.rtf", WriteRtf(text));
    const test::ProgramRun run =
        test::RunProgram({"/usr/bin/unrtf", "--html", disk.Path("a.rtf")}, {{"LC_ALL", "C.UTF-8"}});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    return run.out;
}

RtfText OneRun(const Text& words, RtfStyle style = {})
{
    RtfText text;
    text.fonts = {{"Courier New", RtfFont::Family::Modern}};
    style.font = 0;
    text.paragraphs = {{.runs = {{words, style}}}};
    return text;
}

TEST(WriteRtf, IsReadAlikeByAnotherProgram)
{
    const std::string swedish = AsHtml(OneRun("Räksmörgås på ö, {inga} fel \\ här"));
    EXPECT_THAT(swedish, HasSubstr("R&auml;ksm&ouml;rg&aring;s p&aring; &ouml;, {inga} fel \\ "
                                   "h&auml;r"));
    EXPECT_THAT(swedish, HasSubstr("Courier New"));
}

TEST(WriteRtf, GivesAnotherProgramEveryLetterOnce)
{
    const std::string html = AsHtml(OneRun("Ωμέγα – Łódź"));
    EXPECT_THAT(html, HasSubstr("&Omega;&mu;&#941;&gamma;&alpha;"));
    // The stand-in for readers without Unicode is not shown beside the letter.
    EXPECT_THAT(html, Not(HasSubstr("?")));
}

TEST(WriteRtf, GivesAnotherProgramItsFormats)
{
    EXPECT_THAT(AsHtml(OneRun("fet", {.isBold = true})), HasSubstr("<b>fet</b>"));
    EXPECT_THAT(AsHtml(OneRun("lutar", {.isItalic = true})), HasSubstr("<i>lutar</i>"));
    EXPECT_THAT(AsHtml(OneRun("rak", {.isUnderlined = true})), HasSubstr("<u>rak</u>"));
    EXPECT_THAT(AsHtml(OneRun("bort", {.isStruckOut = true})), HasSubstr("<s>bort</s>"));
    EXPECT_THAT(AsHtml(OneRun("röd", {.foreground = 0x0000FF})),
                HasSubstr("<font color=\"#ff0000\">"));
}

TEST(WriteRtf, GivesAnotherProgramItsParagraphs)
{
    RtfText text = OneRun("ett");
    text.paragraphs.push_back({.runs = {{"två", {.font = 0}}}});
    text.paragraphs[1].alignment = RtfParagraph::Alignment::Centre;
    const std::string html = AsHtml(text);
    EXPECT_THAT(html, testing::ContainsRegex("ett.*<br>"));
    EXPECT_THAT(html, HasSubstr("<center>"));
}

} // namespace
} // namespace quillon
