#include "filelist/replace_rows.h"

#include "filelist/list_builder.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;

namespace {

struct ReplaceCase {
    const char* what;
    ReplaceIn where;
    Text stored;
    Replacement replacement;
    Text result;
};

// clang-format off
const ReplaceCase kCases[] = {
    {"ExactDestination",        ReplaceIn::Destinations, "%DESTDIR",          {"%DESTDIR", "%WINDIR"},           "%WINDIR"},
    {"ExactIsNoPart",           ReplaceIn::Destinations, "%DESTDIR\\Sub",     {"%DESTDIR", "%WINDIR"},           "%DESTDIR\\Sub"},
    {"ExactKnowsCase",          ReplaceIn::Destinations, "%DESTDIR\\Sub",     {"%DESTDIR\\sub", "x"},            "%DESTDIR\\Sub"},
    {"ExactEmpty",              ReplaceIn::Destinations, "",                  {"", "%DESTDIR"},                  "%DESTDIR"},
    {"ExactByNothing",          ReplaceIn::Destinations, "%DESTDIR",          {"%DESTDIR", ""},                  ""},
    {"PartDestination",         ReplaceIn::Destinations, "%DESTDIR\\Sub",     {"%DESTDIR", "%WINDIR", true},     "%WINDIR\\Sub"},
    {"PartThatIsAll",           ReplaceIn::Destinations, "%DESTDIR",          {"%DESTDIR", "%WINDIR", true},     "%WINDIR"},
    {"PartEachTime",            ReplaceIn::Destinations, "C:\\aa\\aba",       {"a", "åå", true},                 "C:\\åååå\\ååbåå"},
    {"PartIsNotLookedForAgain", ReplaceIn::Destinations, "aaa",               {"a", "aa", true},                 "aaaaaa"},
    {"PartKnowsCase",           ReplaceIn::Destinations, "%DESTDIR\\Sub",     {"SUB", "x", true},                "%DESTDIR\\Sub"},
    {"PartOfNothing",           ReplaceIn::Destinations, "%DESTDIR",          {"", "x", true},                   "%DESTDIR"},
    {"PartByNothing",           ReplaceIn::Destinations, "%DESTDIR\\Sub",     {"\\Sub", "", true},               "%DESTDIR"},
    {"SourceTakesItAlone",      ReplaceIn::Sources,      "c:\\d\\a.txt",      {"c:\\d", "E:\\Ny"},               "E:\\Ny"},
    {"SourceByItsWholePath",    ReplaceIn::Sources,      "c:\\d\\a.txt",      {"c:\\d\\a.txt", "E:\\Ny"},        "c:\\d\\a.txt"},
    {"SourceInAFolderBelow",    ReplaceIn::Sources,      "c:\\d\\sub\\a.txt", {"c:\\d", "E:\\Ny"},               "c:\\d\\sub\\a.txt"},
    {"SourceKnowsCase",         ReplaceIn::Sources,      "c:\\d\\a.txt",      {"C:\\D", "E:\\Ny"},               "c:\\d\\a.txt"},
    {"PartOfASource",           ReplaceIn::Sources,      "c:\\d\\a.txt",      {"c:\\d", "e:\\ny", true},         "e:\\ny\\a.txt"},
    {"PartOfItsName",           ReplaceIn::Sources,      "c:\\d\\a.txt",      {".txt", ".doc", true},            "c:\\d\\a.doc"},
    {"EmptyFolderHasNoSource",  ReplaceIn::Sources,      "",                  {"", "E:\\Ny"},                    ""},
    {"OptionsInCapitals",       ReplaceIn::Options,      "DA",                {"DA", "vra"},                     "VRA"},
    {"OptionsWhole",            ReplaceIn::Options,      "VRAW",              {"VRA", "D"},                      "VRAW"},
    {"OptionsKnowNoPart",       ReplaceIn::Options,      "VRAW",              {"VRA", "D", true},                "VRAW"},
    {"OptionsWithAStar",        ReplaceIn::Options,      "D*",                {"D*", "D"},                       "D"},
    {"OptionsByNothing",        ReplaceIn::Options,      "D",                 {"D", ""},                         ""},
};
// clang-format on

class ReplaceRows : public testing::TestWithParam<ReplaceCase> {};

} // namespace

TEST_P(ReplaceRows, GivesTheRowItsText)
{
    const ReplaceCase& given = GetParam();
    const Column column = UseOf(given.where).column;
    FileListRow row = MakeRow("a.txt", "%DESTDIR", "c:\\d\\a.txt");
    row[CopyOptions] = "D";
    row[column] = given.stored;
    FileList files = MakeList({row});
    const std::size_t changed = ReplaceInRows(files, given.where, given.replacement);
    EXPECT_EQ(changed, given.stored == given.result ? 0U : 1U);
    row[column] = given.result;
    EXPECT_EQ(files.rows[0], row) << "and no other field changes";
}

INSTANTIATE_TEST_SUITE_P(All, ReplaceRows, testing::ValuesIn(kCases),
                         [](const auto& given) { return std::string(given.param.what); });

TEST(ReplaceInRows, WalksAllRowsAndCountsTheChangedOnes)
{
    FileList files = MakeList(
        {MakeRow("a", "%DESTDIR\\Sub"), MakeRow("<Dir>", "%DESTDIR"), MakeRow("c", "%WINDIR")});
    EXPECT_EQ(ReplaceInRows(files, ReplaceIn::Destinations, {"%DESTDIR", "%FONTDIR", true}), 2U);
    EXPECT_EQ(files.rows[0][Destination], "%FONTDIR\\Sub");
    EXPECT_EQ(files.rows[1][Destination], "%FONTDIR");
    EXPECT_EQ(files.rows[2][Destination], "%WINDIR");
    EXPECT_THAT(NamesOf(files), ElementsAre("a", "<Dir>", "c"));
}

TEST(ReplaceUse, HasACaptionForEachColumn)
{
    const auto expect = [](ReplaceIn where, const Text& caption, Column column, bool offersPart) {
        EXPECT_EQ(UseOf(where).caption, caption);
        EXPECT_EQ(UseOf(where).column, column) << caption;
        EXPECT_EQ(UseOf(where).offersPart, offersPart) << caption;
    };
    expect(ReplaceIn::Destinations, "Sök och ersätt destinationskatalog", Destination, true);
    expect(ReplaceIn::Sources, "Sök och ersätt källkatalog", Source, true);
    expect(ReplaceIn::Options, "Sök och ersätt kopieringsinställningar", CopyOptions, false);
}

TEST(ProposedSearch, IsTheTextOfTheRowOrTheFolderOfItsSource)
{
    FileListRow row = MakeRow("a.txt", "%DESTDIR\\Sub", "c:\\d\\sub\\a.txt");
    row[CopyOptions] = "DA*";
    EXPECT_EQ(ProposedSearch(row, ReplaceIn::Destinations), "%DESTDIR\\Sub");
    EXPECT_EQ(ProposedSearch(row, ReplaceIn::Sources), "c:\\d\\sub");
    EXPECT_EQ(ProposedSearch(row, ReplaceIn::Options), "DA*");
    row[Source] = "c:\\a.txt";
    EXPECT_EQ(ProposedSearch(row, ReplaceIn::Sources), "c:\\");
    EXPECT_EQ(ProposedSearch(MakeRow("<Dir>"), ReplaceIn::Sources), "");
}

TEST(OptionLetters, AreCapitalsOrX)
{
    const std::pair<Text, Text> cases[] = {{"", ""},     {"dva", "DVA"}, {"D*", "DX"},
                                           {"1a", "XA"}, {"åÄ", "XX"},   {"ö", "X"},
                                           {" ;", "XX"}, {"€x", "XX"},   {"AZaz", "AZAZ"}};
    for (const auto& [typed, letters] : cases)
        EXPECT_EQ(AsOptionLetters(typed), letters) << typed;
}

TEST(Replacement, MustStandInARow)
{
    const std::pair<ReplaceIn, Text> cases[] = {{ReplaceIn::Destinations, "Destinationskatalogen"},
                                                {ReplaceIn::Sources, "Källsökvägen"},
                                                {ReplaceIn::Options, "Kopieringsinställningarna"}};
    for (const auto& [where, what] : cases) {
        ScriptedAsk ask({{BoxKind::Critical, "Ogiltiga tecken hittade",
                          what + " innehåller ogiltiga tecken! Semikolon kan inte användas, "
                                 "eftersom det skiljer fälten i projektfilen åt."}});
        EXPECT_FALSE(MayReplaceWith("a;b", where, ask));
        EXPECT_TRUE(MayReplaceWith("a:b", where, ask));
        EXPECT_TRUE(MayReplaceWith("", where, ask));
    }
}

} // namespace quillon::test
