#include "runtime/script/script_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {
namespace {

using testing::ElementsAre;
using Word = ScriptWord;

/// The one command of a script of one line.
ScriptCommand Only(const Text& line)
{
    const Script script = ReadScript(line);
    EXPECT_EQ(script.fault, std::nullopt) << line;
    EXPECT_EQ(script.commands.size(), 1U) << line;
    return script.commands.empty() ? ScriptCommand{} : script.commands[0];
}

ScriptFault FaultOf(const Text& text)
{
    const Script script = ReadScript(text);
    EXPECT_TRUE(script.fault) << text;
    EXPECT_TRUE(script.commands.empty()) << text;
    return script.fault.value_or(ScriptFault{});
}

TEST(ScriptLines, KnowEveryCommandInWhateverCase)
{
    const std::pair<const char*, Word> lines[] = {
        {"MESSAGE \"Hej\"", Word::Message},
        {"log \"rad\"", Word::Log},
        {"Copy a b", Word::Copy},
        {"DELETE a", Word::Delete},
        {"RENAME a b", Word::Rename},
        {"MAKEFOLDER a", Word::MakeFolder},
        {"REMOVEFOLDER a", Word::RemoveFolder},
        {"INI a b c d", Word::Ini},
        {"REGISTRY HKEY_CURRENT_USER\\Software\\Firma :: a=1", Word::Registry},
        {"RUN a", Word::Run},
        {"RUN a b", Word::Run},
        {"RUNHIDDEN a", Word::RunHidden},
        {"SET %EGEN a", Word::Set},
        {"EXIT", Word::Exit},
        {"EXIT 5", Word::Exit},
        {"EXIT 65535 \"Nej\"", Word::Exit},
    };
    for (const auto& [line, word] : lines)
        EXPECT_EQ(Only(line).word, word) << line;
}

TEST(ScriptLines, TakeArgumentsBetweenBlanksAndInQuotationMarks)
{
    EXPECT_THAT(Only("COPY %SRCDIR\\a.txt\t \"C:\\Min mapp\\b.txt\" ").arguments,
                ElementsAre("%SRCDIR\\a.txt", "C:\\Min mapp\\b.txt"));
    EXPECT_THAT(Only("LOG \"säg \"\"hej\"\"\"").arguments, ElementsAre("säg \"hej\""));
    EXPECT_THAT(Only("SET %A \"\"").arguments, ElementsAre("%A", ""));
    EXPECT_THAT(Only("REGISTRY HKCU\\A b :: c=\"d  e\" ").arguments,
                ElementsAre("HKCU\\A b :: c=\"d  e\""));
}

TEST(ScriptLines, PassOverCommentsAndEmptyLinesButCountThem)
{
    const Script script = ReadScript("; först\r\n\r\n  \t\r\n  LOG a\r\n;\r\nLOG b\r\n");
    ASSERT_EQ(script.commands.size(), 2U);
    EXPECT_EQ(script.commands[0].line, 4);
    EXPECT_EQ(script.commands[1].line, 6);
    EXPECT_TRUE(ReadScript("").commands.empty());
    EXPECT_EQ(ReadScript("").fault, std::nullopt);
}

TEST(ScriptLines, KnowEveryCondition)
{
    const auto of = [](const Text& condition) {
        const Script script = ReadScript("IF " + condition + "\r\nEND");
        EXPECT_EQ(script.fault, std::nullopt) << condition;
        return script.commands.empty() ? ScriptCommand{} : script.commands[0];
    };
    EXPECT_EQ(of("FILE a").test, ScriptTest::File);
    EXPECT_EQ(of("folder \"a b\"").test, ScriptTest::Folder);
    EXPECT_EQ(of("REGISTRY HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft").test, ScriptTest::Registry);
    EXPECT_EQ(of("REGISTRY \"HKLM\\SOFTWARE\\Firma :: Namn\"").test, ScriptTest::Registry);
    EXPECT_EQ(of("YES \"Ta bort?\"").test, ScriptTest::Yes);
    EXPECT_EQ(of("%A = %B").test, ScriptTest::Equal);
    EXPECT_EQ(of("%A <> \"\"").test, ScriptTest::Different);
    EXPECT_THAT(of("\"a b\" = c").arguments, ElementsAre("a b", "c"));
    EXPECT_FALSE(of("FILE a").isNegated);
    EXPECT_TRUE(of("NOT FILE a").isNegated);
    // A word in quotation marks is a text and nothing else.
    EXPECT_EQ(of("\"FILE\" = a").test, ScriptTest::Equal);
    EXPECT_FALSE(of("\"NOT\" = a").isNegated);
}

TEST(ScriptLines, LeadFromEachBranchToTheRightCommand)
{
    const Script script = ReadScript("IF FILE a\r\nLOG 1\r\nIF FILE b\r\nLOG 2\r\nEND\r\nELSE\r\n"
                                     "LOG 3\r\nEND\r\nLOG 4");
    // IF, LOG 1, IF, LOG 2, ELSE, LOG 3, LOG 4
    ASSERT_EQ(script.commands.size(), 7U);
    EXPECT_EQ(script.commands[0].next, 5U);
    EXPECT_EQ(script.commands[2].next, 4U);
    EXPECT_EQ(script.commands[4].word, Word::Else);
    EXPECT_EQ(script.commands[4].next, 6U);
}

TEST(ScriptLines, NameTheFirstFaultAndItsLine)
{
    using enum Message;
    const std::pair<const char*, ScriptFault> faults[] = {
        {"KOPIERA a b", {1, {ScriptUnknown, "KOPIERA"}}},
        {"LOG a\r\n\r\nMESSAGE", {3, {ScriptArguments, "MESSAGE"}}},
        {"copy a", {1, {ScriptArguments, "COPY"}}},
        {"DELETE a b", {1, {ScriptArguments, "DELETE"}}},
        {"EXIT 1 a b", {1, {ScriptArguments, "EXIT"}}},
        {"END a", {1, {ScriptArguments, "END"}}},
        {"LOG \"a", {1, {ScriptQuotes}}},
        {"LOG a\"b\"", {1, {ScriptQuotes}}},
        {"LOG \"a\"b", {1, {ScriptQuotes}}},
        {"EXIT 0", {1, {ScriptNumber, "0", "65535"}}},
        {"EXIT -1", {1, {ScriptNumber, "-1", "65535"}}},
        {"EXIT 65536", {1, {ScriptNumber, "65536", "65535"}}},
        {"EXIT 5x", {1, {ScriptNumber, "5x", "65535"}}},
        {"EXIT 05", {1, {ScriptNumber, "05", "65535"}}},
        {"SET A b", {1, {ScriptVariable, "A"}}},
        {"SET % b", {1, {ScriptVariable, "%"}}},
        {"SET %a b", {1, {ScriptVariable, "%a"}}},
        {"SET %DESTDIR b", {1, {ScriptVariable, "%DESTDIR"}}},
        {"SET %EXITCODE b", {1, {ScriptVariable, "%EXITCODE"}}},
        {"IF", {1, {ScriptCondition}}},
        {"IF NOT", {1, {ScriptCondition}}},
        {"IF a", {1, {ScriptCondition}}},
        {"IF FILE", {1, {ScriptCondition}}},
        {"IF FILE a b", {1, {ScriptCondition}}},
        {"IF a \"=\" b", {1, {ScriptCondition}}},
        {"IF a < b", {1, {ScriptCondition}}},
        {"IF REGISTRY Software", {1, {SkipNoRootKey}}},
        {"REGISTRY HKEY_CURRENT_USER\\Software :: a", {1, {SkipNoEquals}}},
        {"REGISTRY DELETE=HKEY_LOCAL_MACHINE\\SOFTWARE", {1, {SkipSystemKey}}},
        {"ELSE", {1, {ScriptNoIf, "ELSE"}}},
        {"LOG a\r\nend", {2, {ScriptNoIf, "END"}}},
        {"IF FILE a\r\nELSE\r\nELSE\r\nEND", {3, {ScriptNoIf, "ELSE"}}},
        {"LOG a\r\nIF FILE a\r\nLOG b", {2, {ScriptNoEnd}}},
        {"IF FILE a\r\nELSE\r\nLOG b", {2, {ScriptNoEnd}}},
    };
    for (const auto& [text, fault] : faults)
        EXPECT_EQ(FaultOf(text), fault) << text;
}

} // namespace
} // namespace quillon
