// What a save by the editor would lose of a file, and what it would not.
#include "rtf/rtf_losses.h"

#include "rtf/rtf_writer.h"

#include <gmock/gmock.h>

namespace quillon {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(RtfLosses, NamesEachKind)
{
    const std::pair<const char*, const char*> cases[] = {
        {"{\\pict x}", "bilder"},
        {"{\\*\\shppict{\\pict x}}", "bilder"},
        {"{\\object{\\*\\objdata 00}}", "inbäddade objekt"},
        {"{\\shp{\\*\\shpinst\\shpleft0}}", "ritade figurer"},
        {"{\\*\\do\\dobxpage}", "ritade figurer"},
        {"\\trowd\\cellx100 a\\cell\\row", "tabeller"},
        {"{\\header a}", "sidhuvud"},
        {"{\\headerf a}", "sidhuvud"},
        {"{\\headerl a}", "sidhuvud"},
        {"{\\headerr a}", "sidhuvud"},
        {"{\\footer a}", "sidfot"},
        {"{\\footerf a}", "sidfot"},
        {"{\\footerl a}", "sidfot"},
        {"{\\footerr a}", "sidfot"},
        {"{\\footnote a}", "fotnoter"},
        {"{\\*\\annotation a}", "kommentarer"},
        {"{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt a}}", "fält och länkar"},
        {"\\ls1 a", "automatiska listor"},
        {"{\\listtext 1.\\tab}a", "automatiska listor"},
        {"{\\*\\pn\\pnlvlblt}a", "automatiska listor"},
        {"\\up6 a", "höjda eller sänkta tecken"},
        {"\\dn a", "höjda eller sänkta tecken"},
        {"\\v a", "dold text"},
        {"\\deleted a", "dold text"},
        {"\\uldb a", "streckade, dubbla eller vågiga understrykningar"},
        {"\\outl a", "konturer, skuggor eller relief på tecken"},
        {"\\brdrt\\brdrs a", "ramar"},
        {"\\cbpat2 a", "bakgrundsfärg på stycken"},
        {"\\tqr\\tx500 a", "tabbar som högerställer eller fyller ut"},
        {"a\\page b", "sidbrytningar"},
        {"\\cols2 a", "spalter"},
    };
    for (const auto& [body, name] : cases)
        EXPECT_THAT(RtfLosses("{\\rtf1 a" + std::string(body) + "}"), ElementsAre(name)) << body;
}

TEST(RtfLosses, AreToldOnceInOneOrder)
{
    EXPECT_THAT(RtfLosses("{\\rtf1 {\\field a}\\trowd\\cell{\\pict x}{\\pict y}}"),
                ElementsAre("bilder", "tabeller", "fält och länkar"));
}

TEST(RtfLosses, OfWhatIsKeptOrSwitchedOffAreNone)
{
    const char* const bodies[] = {
        "\\picture",
        "\\\\pict", // a backslash that is text
        "a\\\\v b\\{\\\\pict\\}",
        "\\v0\\up0\\dn0\\ls0\\ulw0\\outl0\\shad0\\pagebb0\\cols1\\cbpat0 a",
        "\\caps\\scaps\\expnd4\\expndtw20\\sl360\\slmult1\\ul\\super a",
        "{\\stylesheet{\\s1\\v\\ls1\\brdrt Rubrik;}}a",
        "{\\*\\listtable{\\list{\\listlevel\\ls1}}}a",
        "{\\info{\\title\\v x}}{\\*\\generator \\pict;}a",
        "{\\fonttbl{\\f0\\up2 Arial;}}a",
        "\\bin7 {\\pict}a",
    };
    for (const char* body : bodies)
        EXPECT_THAT(RtfLosses("{\\rtf1 " + std::string(body) + "}"), IsEmpty()) << body;
    EXPECT_THAT(RtfLosses("{\\rtf1 a}{\\pict}"), IsEmpty()) << "behind the end";
}

TEST(RtfLosses, CountInTheTextBehindAPictureToo)
{
    EXPECT_THAT(RtfLosses("{\\rtf1 {\\pict\\v x}a}"), ElementsAre("bilder"));
    EXPECT_THAT(RtfLosses("{\\rtf1 {\\pict x}\\v a}"), ElementsAre("bilder", "dold text"));
}

TEST(RtfLosses, EndWithADamagedFile)
{
    for (const char* bytes : {"", "{", "{\\rtf1 {\\pict", "}}}", "{\\rtf1 {\\*", "{\\*{\\v a}}"})
        RtfLosses(bytes);
}

TEST(RtfLosses, OfWhatTheWriterMakesAreNone)
{
    RtfText text;
    text.paragraphs = {{.lineSpacing = 360,
                        .isLineSpacingMultiple = true,
                        .runs = {{"a\\pict",
                                  {.isUnderlined = true,
                                   .height = RtfStyle::Height::Subscript,
                                   .capitals = RtfStyle::Capitals::Small,
                                   .letterSpacing = 20}}}}};
    EXPECT_THAT(RtfLosses(WriteRtf(text)), IsEmpty());
}

} // namespace
} // namespace quillon
