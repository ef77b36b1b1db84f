#include "cli/arguments.h"

#include "cli/calls.h"

#include <stdexcept>

namespace quillon::cli {
namespace {

Exit DoNothing(const CallContext&)
{
    return Exit::Done;
}

const Call kCalls[] = {
    {"pack",
     {"IN", "OUT"},
     {{"--how", "HOW", "help", "fast|small"},
      {"--to", "FOLDER", "help"},
      {"--dry", nullptr, "help"}},
     "Packs.",
     DoNothing},
    {"rest", {}, {}, "Rests.", DoNothing},
    {"send", {}, {{"--to", "HOST", "help", nullptr, Need::Required}}, "Sends.", DoNothing},
};

Arguments Read(const std::vector<std::string>& words)
{
    return ReadArguments(words, kCalls);
}

Text ErrorOf(const std::vector<std::string>& words)
{
    try {
        Read(words);
        return "(none)";
    } catch (const UsageError& error) {
        return error.text;
    }
}

TEST(ReadArguments, TakesOperandsAndOptionsInAnyOrder)
{
    const Arguments read = Read({"pack", "--how", "small", "a", "--dry", "b", "--to=c=d"});
    EXPECT_STREQ(read.call->name, "pack");
    EXPECT_EQ(read.operands, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(read.Value("--how"), "small");
    EXPECT_EQ(read.Value("--to"), "c=d");
    EXPECT_TRUE(read.Has("--dry"));
    EXPECT_FALSE(Read({"pack", "a", "b"}).Has("--dry"));
    EXPECT_EQ(Read({"pack", "a", "b"}).Value("--to"), std::nullopt);
}

TEST(ReadArguments, TakesNothingForAnOptionBehindTwoDashes)
{
    EXPECT_EQ(Read({"pack", "--", "--how", "-"}).operands,
              (std::vector<std::string>{"--how", "-"}));
    EXPECT_EQ(Read({"pack", "-", "b"}).operands[0], "-");
}

TEST(ReadArguments, TellsWhatIsWrong)
{
    EXPECT_EQ(ErrorOf({}), "Ange vad som ska göras.");
    EXPECT_EQ(ErrorOf({"fly"}), "'fly' är inget kommando.");
    EXPECT_EQ(ErrorOf({"pack", "a"}), "Kommandot pack saknar OUT.");
    EXPECT_EQ(ErrorOf({"pack", "a", "b", "c"}), "'c' är en uppgift för mycket.");
    EXPECT_EQ(ErrorOf({"rest", "a"}), "'a' är en uppgift för mycket.");
    EXPECT_EQ(ErrorOf({"pack", "--up"}), "Kommandot pack har ingen växel '--up'.");
    EXPECT_EQ(ErrorOf({"rest", "--dry"}), "Kommandot rest har ingen växel '--dry'.");
    EXPECT_EQ(ErrorOf({"pack", "a", "b", "--to"}), "Växeln --to saknar sitt värde (FOLDER).");
    EXPECT_EQ(ErrorOf({"pack", "a", "b", "--dry=1"}), "Växeln --dry har inget värde.");
    EXPECT_EQ(ErrorOf({"pack", "--dry", "--dry"}), "Växeln --dry är angiven två gånger.");
    EXPECT_EQ(ErrorOf({"pack", "--how", "fas"}),
              "Växeln --how kan ej vara 'fas'; välj fast, small.");
    EXPECT_EQ(ErrorOf({"pack", "--how="}), "Växeln --how kan ej vara ''; välj fast, small.");
}

TEST(ReadArguments, WantsTheSwitchesThatACallRequires)
{
    EXPECT_EQ(ErrorOf({"send"}), "Kommandot send saknar växeln --to.");
    EXPECT_EQ(Read({"send", "--to", "x"}).Required("--to"), "x");
}

TEST(ReadArguments, LetsACallLookUpNothingBeyondItsRow)
{
    const Arguments read = Read({"send", "--to", "x"});
    EXPECT_TRUE(read.Declares("--to"));
    EXPECT_FALSE(read.Declares("--dry"));
    EXPECT_THROW(static_cast<void>(read.Has("--dry")), std::logic_error);
    EXPECT_THROW(static_cast<void>(read.Value("--dry")), std::logic_error);
    EXPECT_THROW(static_cast<void>(Read({"pack", "a", "b"}).Required("--to")), std::logic_error);
}

TEST(HelpText, ShowsWhichSwitchesACallRequires)
{
    const Text help = HelpText(AllCalls());
    EXPECT_NE(help.find("quillonc new PROJEKT --name NAMN --destination KATALOG [växlar]\n"),
              Text::npos);
    EXPECT_NE(help.find("quillonc test PROJEKT --to KATALOG [växlar]\n"), Text::npos);
}

TEST(HelpText, NamesEveryCallAndEveryOption)
{
    const Text help = HelpText(AllCalls());
    for (const Call& call : AllCalls()) {
        EXPECT_NE(help.find(Text("quillonc ") + call.name), Text::npos) << call.name;
        for (const Option& option : call.options)
            EXPECT_NE(help.find(option.help), Text::npos) << option.name;
    }
    for (const Text& line : SplitLines(ReplaceAll(help, "\n", "\r\n")))
        EXPECT_LE(CharacterCount(line), 100U) << line;
}

} // namespace
} // namespace quillon::cli
