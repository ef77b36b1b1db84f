#include "rtf/rtf_text.h"

#include "rtf/rtf_dump.h"
#include "rtf/rtf_words.h"

#include <fstream>
#include <gtest/gtest.h>
#include <span>
#include <sstream>

namespace quillon::test {
namespace {

constexpr char kHeader[] = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss Arial;}"
                           "{\\f1\\froman\\fcharset238 Times;}{\\f2\\fnil\\fcharset2 Symbol;}}"
                           "{\\colortbl ;\\red255\\green0\\blue0;\\red1\\green2\\blue3;}";

Text ReadBody(const std::string& body)
{
    const auto text = ReadRtf(kHeader + body + "}");
    return text ? Dump(*text) : "no RTF";
}

struct Case {
    const char* rtf;
    const char* text;
};

void ExpectEach(std::span<const Case> cases)
{
    for (const Case& one : cases)
        EXPECT_EQ(ReadBody(one.rtf), one.text) << one.rtf;
}

TEST(ReadRtf, CutsTheTextIntoParagraphs)
{
    constexpr Case cases[] = {
        {"", ""},
        {"Ett", "Ett"},
        {"Ett\\par Tv\\'e5\\par", "Ett¶Två"},
        {"Ett\\par\\par Tre", "Ett¶¶Tre"},
        {"Ett\r\ntv\\'E5 \r\ntre", "Etttvå tre"},
        {"Ett\\\r\nTv\\'e5\\\nTre", "Ett¶Två¶Tre"},
        {"Ett\\line tv\\'e5\\tab tre", "Ett\ntvå\ttre"},
        {"Ett\\page Tv\\'e5\\sect Tre", "Ett¶Två¶Tre"},
        {"\\page Ett", "Ett"},
        {"{Ett}{ tv\\'e5}", "Ett två"},
        {"\\trowd\\intbl Ett\\cell Tv\\'e5\\cell\\row Tre", "Ett\tTvå\t¶Tre"},
        {"Ett\\parTv\\'e5", "Ett\xC3\xA5"}, // "parTv" is one word, and unknown
    };
    ExpectEach(cases);
}

TEST(ReadRtf, KnowsCharactersByByteNameAndNumber)
{
    constexpr Case cases[] = {
        {"\\'e5\\'c4\\'80\\'99", "åÄ€™"},
        {"\xE5\xC4", "åÄ"},
        {"\\'zz\\'1", "zz1"},
        {"\\{a\\}\\\\b", "{a}\\b"},
        {"a\\~b\\_c\\-d", "a\u00A0b\u2011c\u00ADd"},
        {"\\bullet\\emdash\\endash \\lquote a\\rquote \\ldblquote b\\rdblquote", "•—–‘a’“b”"},
        {"\\u229?x", "åx"},
        {"\\u-3913?", "•"}, // F0B7 and the like lie in the fonts of signs
        {"\\u8364\\'80x", "€x"},
        {"\\uc2\\u960pix", "πx"},
        {"\\uc0\\u960x", "πx"},
        {"{\\uc0\\u960}\\u960?x", "ππx"},
        {"\\uc5\\u960 a}b", "π"},
        {"\\uc2\\u960{ab}", "πab"},
        {"\\uc3\\u960 a\\tab\\'e5x", "πx"},
        {"\\u-10179?\\u-8704?", "😀"},
        {"\\u-8704?\\u-10179?", "\uFFFD"},
        {"\\u0?\\u7?x", "x"},
        {"a\tb\x01\x7F", "a\tb\x7F"},
        {"\\u?", "?"},
    };
    ExpectEach(cases);
}

TEST(ReadRtf, ReadsFontsOfOtherAlphabets)
{
    constexpr Case cases[] = {
        {"\\f1\\'f5\\f0\\'f5", "ő(f1)õ"},
        {"\\f2\\'b7\\'a7\\'fcQ", "(f-)•▪✓•"},
        {"\\f9\\'e5", "(f-)å"},
        {"\\plain\\f1 a\\plain b", "a(f1)b"},
    };
    ExpectEach(cases);
    const auto text = ReadRtf("{\\rtf1\\ansicpg1251{\\fonttbl{\\f0 \\'ce;}{\\f1\\fcharset204 B;}"
                              "{\\f2\\cpg1253 C;}}\\'ff{\\f1\\'ff}{\\f2\\'e1}}");
    ASSERT_TRUE(text);
    EXPECT_EQ(Dump(*text), "(f-)я()я(f1)α");
}

TEST(ReadRtf, ReadsTheTableOfFonts)
{
    const auto text =
        ReadRtf("{\\rtf1\\deff3{\\fonttbl\\f0\\froman Times New Roman;\\f1\\fmodern Cour\\'e9r;"
                "{\\f3\\fswiss{\\*\\panose 020b}Arial{\\*\\falt Helvetica};}{\\f4 \\u214?sten;}}"
                "a{\\f0 b}{\\f1 c}{\\f4 d}{\\f0 e}}");
    ASSERT_TRUE(text);
    ASSERT_EQ(text->fonts.size(), 4U);
    EXPECT_EQ(text->fonts[0].name, "Arial");
    EXPECT_EQ(text->fonts[0].family, RtfFont::Family::Swiss);
    EXPECT_EQ(text->fonts[1].name, "Times New Roman");
    EXPECT_EQ(text->fonts[1].family, RtfFont::Family::Roman);
    EXPECT_EQ(text->fonts[2].name, "Courér");
    EXPECT_EQ(text->fonts[2].family, RtfFont::Family::Modern);
    EXPECT_EQ(text->fonts[3].name, "Östen");
}

TEST(ReadRtf, FollowsTheLettersLook)
{
    constexpr Case cases[] = {
        {"a\\b b\\b0 c", "a(b)b()c"},
        {"\\b1\\i a\\b0 b", "(b i)a(i)b"},
        {"{\\ul a}b\\uldb c\\ulnone d", "(ul)a()b(ul)c()d"},
        {"\\strike a\\strike0 b", "(st)a()b"},
        {"\\super a\\nosupersub b{\\sub c}d", "(up)a()b(dn)c()d"},
        {"\\fs40 a\\fs20 b", "(40)a(20)b"},
        {"\\fs0 a\\fs99999 b\\fs c", "(2)a(1440)b()c"},
        {"\\cf1 a\\cf2 b\\cf0 c\\cf7 d", "(0000FF)a(030201)b()cd"},
        {"\\highlight1 a\\cb0 b", "(/0000FF)a()b"},
        {"\\v hidden\\v0 seen", "seen"},
        {"{\\b\\i\\fs60\\plain a}", "a"},
        {"{\\b a{\\i b}c}d", "(b)a(b i)b(b)c()d"},
    };
    ExpectEach(cases);
}

TEST(ReadRtf, FollowsTheParagraphsShape)
{
    constexpr Case cases[] = {
        {"\\qc a\\par\\qr b\\par\\qj c\\par\\ql d", "<qc>a¶<qr>b¶<qj>c¶d"},
        {"\\qc a\\par\\pard b", "<qc>a¶b"},
        {"\\li720\\fi-360\\ri100 a", "<li720 fi-360 ri100>a"},
        {"\\sb120\\sa60 a\\par b", "<sb120 sa60>a¶<sb120 sa60>b"},
        {"\\sb-5\\li99999999999 a", "<li31680>a"},
        {"\\tx360\\tx720\\tx0 a\\par\\pard b", "<tx360 tx720>a¶b"},
        {"{\\qc a}\\par", "a"},
        {"{\\qc a\\par}b", "<qc>a¶b"},
    };
    ExpectEach(cases);
}

TEST(ReadRtf, ReadsTheSignsOfLists)
{
    constexpr Case cases[] = {
        {"{\\pntext\\f2\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf2{\\pntxtb\\'B7}}\\fi-360\\li360 a\\par"
         "{\\pntext\\f2\\'B7\\tab}b",
         "<li360 fi-360>(f-)•\t()a¶<li360 fi-360>(f-)•\t()b"},
        {"{\\listtext\\plain 1.\\tab}a", "1.\ta"},
    };
    ExpectEach(cases);
}

TEST(ReadRtf, PassesOverWhatIsNoTextOfTheDocument)
{
    constexpr Case cases[] = {
        {"a{\\*\\unknown b{c}}d", "ad"},
        {"a{\\unknown b}d", "abd"},
        {"{\\info{\\title b}}a", "a"},
        {"{\\stylesheet{\\s1 Rubrik;}}a", "a"},
        {"{\\header b\\par}{\\footer c}a{\\footnote d}", "a"},
        {"a{\\pict\\wmetafile8 0102ff}b", "ab"},
        {"{\\*\\shppict{\\pict 01}}{\\nonshppict{\\pict 01}}a", "a"},
        {"{\\object{\\*\\objdata 0102}{\\result a}}", "a"},
        {"{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt a}}", "a"},
        {"{\\upr{a}{\\*\\ud{\\u960?}}}", "a"},
        {"a\\*b", "ab"},
        {"a{\\*}b", "ab"},
        {"a{\\pict b\\bin3 }}}c}d", "ad"},
        {"\\bin2 }}a", "a"},
    };
    ExpectEach(cases);
}

TEST(ReadRtf, KnowsTheDocumentsCodePage)
{
    const std::pair<const char*, const char*> cases[] = {
        {"{\\rtf1 \\'e5}", "å"},
        {"{\\rtf1\\ansi\\'e5}", "å"},
        {"{\\rtf1\\mac\\'8c}", "å"},
        {"{\\rtf1\\pc\\'86}", "å"},
        {"{\\rtf1\\pca\\'86}", "å"},
        {"{\\rtf1\\ansicpg865\\'86}", "å"},
        {"{\\rtf1\\ansicpg1250\\'f8}", "ř"},
        {"{\\rtf1\\ansicpg932 a\\'83}", "a\uFFFD"},
        {"{\\rtf1\\ansicpg0\\'e5}", "å"},
    };
    for (const auto& [rtf, expected] : cases) {
        const auto text = ReadRtf(rtf);
        ASSERT_TRUE(text) << rtf;
        EXPECT_EQ(Dump(*text), Text("(f-)") + expected) << rtf;
    }
}

TEST(ReadRtf, TakesNothingElseForRtf)
{
    for (const char* bytes : {"", "{", "{\\rt", "text", "{\\html}", "{\\rtfx}", "rtf1",
                              "\xEF\xBB\xBF", "PK\x03\x04", "<html>{\\rtf1}", "{{\\rtf1}}"})
        EXPECT_FALSE(ReadRtf(bytes)) << bytes;
    for (const char* bytes : {"{\\rtf1}", "{\\rtf}", "{\\rtf", "\r\n {\\rtf1 }", "{\\rtf1}\r\n"})
        EXPECT_TRUE(ReadRtf(bytes)) << bytes;
}

TEST(ReadRtf, StopsBehindTheLastBrace)
{
    const auto text = ReadRtf(std::string("{\\rtf1 a}b{c\0\0", 13));
    ASSERT_TRUE(text);
    EXPECT_EQ(text->fault, RtfText::Fault::None);
    EXPECT_EQ(Dump(*text), "(f-)a");
}

TEST(ReadRtf, TellsThatAFileIsCut)
{
    for (const char* bytes :
         {"{\\rtf1 a", "{\\rtf1 a{", "{\\rtf1 {a}", "{\\rtf1 a\\", "{\\rtf1 a\\'", "{\\rtf1 a\\'f",
          "{\\rtf1 a\\bin9 x}", "{\\rtf1 a\\bin99999999999 x}"}) {
        const auto text = ReadRtf(bytes);
        ASSERT_TRUE(text) << bytes;
        EXPECT_EQ(text->fault, RtfText::Fault::Cut) << bytes;
        EXPECT_EQ(Dump(*text), "(f-)a") << bytes;
    }
}

TEST(ReadRtf, SurvivesACutAtAnyByte)
{
    std::ifstream file(QUILLON_TEST_DATA "/../fuzz/corpus/rtf_text/agreement.rtf",
                       std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    const std::string whole = bytes.str();
    const std::size_t end = whole.rfind('}');
    ASSERT_NE(end, std::string::npos);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const auto text = ReadRtf(std::string_view(whole).substr(0, length));
        ASSERT_EQ(text.has_value(), length >= 5) << length;
        if (text)
            EXPECT_EQ(text->fault == RtfText::Fault::Cut, length <= end) << length;
    }
}

TEST(ReadRtf, SurvivesDeepGroups)
{
    constexpr std::size_t kDepth = 1'000'000;
    const std::string open(kDepth, '{');
    const std::string close(kDepth, '}');
    auto text = ReadRtf("{\\rtf1 a{\\b " + open + "b" + close + "}c}");
    ASSERT_TRUE(text);
    EXPECT_EQ(text->fault, RtfText::Fault::None);
    EXPECT_EQ(Dump(*text), "(f-)a(f- b)b(f-)c");
    text = ReadRtf("{\\rtf1 a" + open);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->fault, RtfText::Fault::Cut);
    text = ReadRtf("{\\rtf1 a}" + close);
    ASSERT_TRUE(text);
    EXPECT_EQ(Dump(*text), "(f-)a");
}

std::string Repeated(std::string_view piece, std::size_t count)
{
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
        all += piece;
    return all;
}

TEST(ReadRtf, EndsWhatHasNoEnd)
{
    const auto read = [](const std::string& body) {
        auto text = ReadRtf("{\\rtf1" + body + "}");
        EXPECT_TRUE(text);
        return std::move(*text);
    };
    const RtfText letters = read(Repeated(" \\'e5", 3'000'000));
    EXPECT_EQ(letters.fault, RtfText::Fault::TooLong);
    EXPECT_LE(letters.paragraphs.at(0).runs.at(0).text.size(), kMaxRtfTextSize + 4);

    const RtfText oneLine = read(" " + std::string(10'000'000, 'a'));
    EXPECT_EQ(oneLine.fault, RtfText::Fault::TooLong);
    EXPECT_EQ(oneLine.paragraphs.at(0).runs.at(0).text.size(), kMaxRtfTextSize);

    const RtfText paragraphs = read(Repeated("\\par", 1'000'000));
    EXPECT_EQ(paragraphs.fault, RtfText::Fault::TooLong);
    EXPECT_EQ(paragraphs.paragraphs.size(), kMaxRtfLines);

    const RtfText breaks = read(Repeated("\\line", 1'000'000));
    EXPECT_EQ(breaks.fault, RtfText::Fault::TooLong);
    EXPECT_EQ(breaks.paragraphs.at(0).runs.at(0).text.size(), kMaxRtfLines);

    const RtfText runs = read(Repeated("\\b a\\b0 b", 200'000));
    EXPECT_EQ(runs.fault, RtfText::Fault::TooLong);
    EXPECT_EQ(runs.paragraphs.at(0).runs.size(), kMaxRtfRuns);

    // Tables of any size, words of any length and numbers of any number of digits.
    EXPECT_EQ(read("{\\fonttbl" + Repeated("{\\f1 a;}", 500'000) + "}x").paragraphs.size(), 1U);
    EXPECT_EQ(read("{\\fonttbl{\\f1 " + std::string(5'000'000, 'a') + ";}}\\f1 x").fonts.at(0).name,
              Text(100, 'a'));
    EXPECT_EQ(read("{\\colortbl" + Repeated("\\red9;", 500'000) + "}\\cf9 x").fault,
              RtfText::Fault::None);
    EXPECT_EQ(Dump(read("\\" + std::string(5'000'000, 'b') + " x")), "(f-)x");
    EXPECT_EQ(Dump(read("\\fs" + std::string(5'000'000, '9') + " x")), "(f- 1440)x");
    EXPECT_EQ(Dump(read("\\li-" + std::string(5'000'000, '9') + " x")), "<li-31680>(f-)x");
}

TEST(RtfWords, KnowTheCharsetsOfTheUsualFonts)
{
    const std::pair<int, int> charsets[] = {{0, 1252},   {1, 0},      {161, 1253}, {162, 1254},
                                            {186, 1257}, {204, 1251}, {238, 1250}, {77, 10000},
                                            {255, 850},  {99, 0}};
    for (const auto& [charset, codePage] : charsets)
        EXPECT_EQ(CodePageOfCharset(charset), codePage) << charset;
}

} // namespace
} // namespace quillon::test
