#include "helpers/text.h"

#include "helpers/ansi_text.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(UpperAndLowerCase, CoverTheLettersOfWindows1252)
{
    EXPECT_EQ(UpperCase("abcåäöéÿšœžþß÷"), "ABCÅÄÖÉŸŠŒŽÞß÷");
    EXPECT_EQ(LowerCase("ABCÅÄÖÉŸŠŒŽÞ×"), "abcåäöéÿšœžþ×");
    EXPECT_EQ(LowerCase("ДЖ Σ"), "ДЖ Σ") << "letters that no project can hold stay as they are";
}

TEST(UpperAndLowerCase, PairEveryLetterOfTheCodePageAndTouchNothingElse)
{
    const Text lower = "abcdefghijklmnopqrstuvwxyzàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþšœžÿ";
    const Text upper = "ABCDEFGHIJKLMNOPQRSTUVWXYZÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞŠŒŽŸ";
    EXPECT_EQ(UpperCase(lower), upper);
    EXPECT_EQ(LowerCase(upper), lower);
    EXPECT_EQ(UpperCase(upper), upper);
    EXPECT_EQ(LowerCase(lower), lower);

    const Text letters = lower + upper;
    for (int byte = 0; byte < 256; ++byte) {
        const Text character = AnsiText::FromBytes(std::string(1, static_cast<char>(byte)));
        if (letters.find(character) != Text::npos)
            continue;
        EXPECT_EQ(UpperCase(character), character) << byte;
        EXPECT_EQ(LowerCase(character), character) << byte;
    }
}

TEST(Comparison, IgnoresCaseByCodePoint)
{
    EXPECT_TRUE(EqualIgnoreCase("Ärende.TXT", "äRENDE.txt"));
    EXPECT_FALSE(EqualIgnoreCase("a", "ab"));
    EXPECT_LT(CompareIgnoreCase("a", "B"), 0);
    EXPECT_LT(CompareIgnoreCase("a", "ab"), 0);
    EXPECT_GT(CompareIgnoreCase("å", "z"), 0);
}

TEST(TrimBlanks, TakesBlanksAndTabsOffBothEnds)
{
    EXPECT_EQ(TrimBlanks(" \t a b \t"), "a b");
    EXPECT_EQ(TrimBlanks(" \t "), "");
    EXPECT_EQ(TrimBlanks(""), "");
}

TEST(ReplaceAll, DoesNotLookAtWhatItPutIn)
{
    EXPECT_EQ(ReplaceAll("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
}

TEST(RemoveQuotes, TakesOutEachOne)
{
    EXPECT_EQ(RemoveQuotes("\"C:\\a b\"\\c\""), "C:\\a b\\c");
    EXPECT_EQ(RemoveQuotes(""), "");
}

TEST(SplitLines, CutsAtEachLineBreakAndAtNothingElse)
{
    EXPECT_EQ(SplitLines(""), (std::vector<Text>{""}));
    EXPECT_EQ(SplitLines("a\r\n\r\nb\nc\rd"), (std::vector<Text>{"a", "", "b\nc\rd"}));
    EXPECT_EQ(SplitLines("a\r\n"), (std::vector<Text>{"a", ""}));
}

TEST(StrBetween, NeedsBothMarks)
{
    EXPECT_EQ(StrBetween("a \"b\" \"c\"", "\"", "\""), "b");
    EXPECT_EQ(StrBetween("a \"b", "\"", "\""), "");
    EXPECT_EQ(StrBetween("a]b[", "[", "]"), "");
    EXPECT_EQ(StrBetween("[" + Text(3000, 'x') + "]", "[", "]").size(), 2000U);
}

TEST(Characters, AreCountedAndCutWhole)
{
    EXPECT_EQ(CharacterCount("åäö"), 3U);
    EXPECT_EQ(FirstCharacters("åäö", 2), "åä");
    EXPECT_EQ(FirstCharacters("å", 5), "å");
    EXPECT_EQ(CharacterCount("\xC3"), 1U) << "a broken sequence counts as one";
}

} // namespace quillon
