#include "ini/ini_scanner.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

using Kind = ScannedLine::Kind;

constexpr IniSyntax kFirstBracket = {IniSyntax::LineEnd::AtLfOrCr,
                                     IniSyntax::Header::ToFirstBracket};
constexpr IniSyntax kWholeLine = {IniSyntax::LineEnd::AtLf, IniSyntax::Header::WholeLine};

struct LineCase {
    const char* line;
    IniSyntax syntax;
    Kind kind;
    const char* name;
    const char* value;
};

TEST(IniScanner, SaysWhatALineIs)
{
    const LineCase cases[] = {
        {"a=b", kProfileSyntax, Kind::Value, "a", "b"},
        {" \ta = b c \t", kProfileSyntax, Kind::Value, "a", "b c"},
        {"a=b=c", kProfileSyntax, Kind::Value, "a", "b=c"},
        {"=", kProfileSyntax, Kind::Value, "", ""},
        {"", kProfileSyntax, Kind::Other, "", ""},
        {"; text", kProfileSyntax, Kind::Other, "", ""},
        {" [a] ", kProfileSyntax, Kind::Header, "a", ""},
        {"[a]b]c", kProfileSyntax, Kind::Header, "a]b", ""},
        {"[a]=c", kProfileSyntax, Kind::Header, "a", ""},
        {"[]", kProfileSyntax, Kind::Header, "", ""},
        {"[a", kProfileSyntax, Kind::Other, "", ""},
        {"[a=b", kProfileSyntax, Kind::Value, "[a", "b"},
        {"[a]b]c", kFirstBracket, Kind::Header, "a", ""},
        {"[a=b", kFirstBracket, Kind::OpenHeader, "a=b", ""},
        {"[", kFirstBracket, Kind::OpenHeader, "", ""},
        {"[a]", kWholeLine, Kind::Header, "a", ""},
        {"[a]b]c", kWholeLine, Kind::Other, "", ""},
        {"[a]=c", kWholeLine, Kind::Value, "[a]", "c"},
    };
    for (const LineCase& test : cases) {
        SCOPED_TRACE(test.line);
        const ScannedLine line = ScannedLineAt(test.line, 0, test.syntax);
        EXPECT_EQ(line.kind, test.kind);
        EXPECT_EQ(line.name, test.name);
        EXPECT_EQ(line.value, test.value);
        EXPECT_EQ(line.whole, test.line);
    }
}

std::vector<std::string> LinesOf(std::string_view bytes, IniSyntax syntax)
{
    std::vector<std::string> lines;
    std::size_t next = 0;
    IniScanner scanner(bytes, syntax);
    while (const auto line = scanner.Next()) {
        EXPECT_EQ(line->begin, next); // no byte belongs to two lines or to none
        EXPECT_EQ(bytes.substr(line->begin, line->end - line->begin), line->whole);
        next = line->next;
        lines.emplace_back(line->whole);
    }
    EXPECT_EQ(next, bytes.size());
    return lines;
}

TEST(IniScanner, EndsLinesByItsSyntax)
{
    using Lines = std::vector<std::string>;
    EXPECT_EQ(LinesOf("", kProfileSyntax), Lines{});
    EXPECT_EQ(LinesOf("a\r\nb\nc\rd", kProfileSyntax), (Lines{"a", "b", "c\rd"}));
    EXPECT_EQ(LinesOf("a\r\nb\nc\rd\r", kFirstBracket), (Lines{"a", "b", "c", "d"}));
    EXPECT_EQ(LinesOf("\n\r\n", kProfileSyntax), (Lines{"", ""}));
    EXPECT_EQ(LinesOf("\n\r\n", kFirstBracket), (Lines{"", ""}));
    EXPECT_EQ(LinesOf("a\r", kProfileSyntax), Lines{"a"}); // cut between CR and LF
    EXPECT_EQ(LinesOf("\r\r\n", kProfileSyntax), Lines{"\r"});
}

TEST(IniScanner, BeginsInTheMiddle)
{
    const std::string bytes = "[a]\nb=1\n";
    IniScanner scanner(bytes, kProfileSyntax, 4);
    const auto line = scanner.Next();
    ASSERT_TRUE(line);
    EXPECT_EQ(line->name, "b");
    EXPECT_EQ(line->begin, 4U);
    EXPECT_FALSE(scanner.Next());
}

} // namespace
} // namespace quillon
