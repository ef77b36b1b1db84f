#include "actions/language_files.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Text kTool = "C:\\Quillon";

class LanguageFilesTest : public testing::Test {
protected:
    void Put(const Text& name, const Text& bytes = "x")
    {
        machine.files.Put(JoinPath(kTool + "\\Language", name), bytes);
    }
    Text Get(const Text& name) { return machine.files.Get(JoinPath(kTool + "\\Language", name)); }
    std::vector<Text> Listed() { return LanguageFiles(machine.files, kTool, ask); }
    std::optional<Text> Add(const Text& typed)
    {
        ask.choices = {{{typed}}};
        return AddLanguage(machine.host, kTool, ask);
    }

    MemoryHost machine;
    ScriptedAsk ask;
};

TEST_F(LanguageFilesTest, AreListedByNameWhateverTheirCase)
{
    for (const char* name :
         {"SWEDISH.LNG", "norsk.lng", "Åländska.Lng", "english.LNG", "A.LNG.TXT", "lng"})
        Put(name);
    machine.files.PutFolder("C:\\Quillon\\Language\\Old.lng");
    EXPECT_THAT(Listed(), ElementsAre("english.LNG", "norsk.lng", "SWEDISH.LNG", "Åländska.Lng"));
}

TEST_F(LanguageFilesTest, AreNoneWithoutTheirFolder)
{
    EXPECT_THAT(Listed(), IsEmpty());
    machine.files.Put("C:\\Quillon\\Language", "a file of that name");
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(LanguageFilesTest, TellOfAFolderThatCannotBeRead)
{
    Put("SWEDISH.LNG");
    machine.files.At("C:\\Quillon\\Language").unreadable = true;
    ask.Expect({BoxKind::Critical, "Fel", "Åtkomst nekas till 'C:\\Quillon\\Language'."});
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(LanguageFilesTest, AreNamedInCapitalsWithTheExtensionOnce)
{
    const std::pair<const char*, const char*> cases[] = {
        {"norsk", "NORSK.LNG"},           {"norsk.lng", "NORSK.LNG"}, {" Norsk.Lng ", "NORSK.LNG"},
        {"A.LNG.TXT", "A.LNG.TXT"},       {"a.lngx", "A.LNGX"},       {"a.txt", "A.TXT.LNG"},
        {"åländska ö", "ÅLÄNDSKA Ö.LNG"},
    };
    for (const auto& [typed, name] : cases)
        EXPECT_EQ(LanguageFileName(typed), name) << typed;
}

TEST_F(LanguageFilesTest, AreAddedAsCopiesOfTheReference)
{
    Put("SWEDISH.LNG", "[Setup]\r\nTitle=Installation av %1\r\n");
    EXPECT_EQ(Add("norsk"), "NORSK.LNG");
    EXPECT_EQ(Get("NORSK.LNG"), "[Setup]\r\nTitle=Installation av %1\r\n");
    EXPECT_THAT(Listed(), ElementsAre("NORSK.LNG", "SWEDISH.LNG"));
    EXPECT_EQ(ask.questions.front().title, "Ny språkfil");
    EXPECT_EQ(ask.questions.front().filter, "&Filnamn:");
}

TEST_F(LanguageFilesTest, AreReplacedWithoutAQuestion)
{
    Put("SWEDISH.LNG", "new");
    Put("norsk.lng", "old");
    EXPECT_EQ(Add("NORSK"), "NORSK.LNG");
    EXPECT_EQ(Get("norsk.lng"), "new");
    EXPECT_EQ(Listed().size(), 2U);
    // A translation is kept beside it, and only once.
    EXPECT_EQ(Get("NORSK.LNG.bak"), "old");
    EXPECT_EQ(Add("NORSK"), "NORSK.LNG");
    EXPECT_FALSE(machine.files.FileExists("C:\\Quillon\\Language\\NORSK.LNG.bak2"));
}

TEST_F(LanguageFilesTest, AreNotAddedWithoutAName)
{
    Put("SWEDISH.LNG");
    for (const char* typed : {"", "  "})
        EXPECT_EQ(Add(typed), std::nullopt);
    ask.choices = {{{}}};
    EXPECT_EQ(AddLanguage(machine.host, kTool, ask), std::nullopt);
    EXPECT_EQ(Listed().size(), 1U);
}

TEST_F(LanguageFilesTest, LeaveTheReferenceAsItIs)
{
    Put("SWEDISH.LNG", "the only one");
    EXPECT_EQ(Add("swedish"), "SWEDISH.LNG");
    EXPECT_EQ(Get("SWEDISH.LNG"), "the only one");
}

TEST_F(LanguageFilesTest, TellOfAReferenceThatIsNotThere)
{
    machine.files.PutFolder("C:\\Quillon\\Language");
    ask.Expect(
        {BoxKind::Critical, "Fel", "Filen 'C:\\Quillon\\Language\\SWEDISH.LNG' finns inte."});
    EXPECT_EQ(Add("norsk"), std::nullopt);
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(LanguageFilesTest, TellOfACopyThatCannotBeMade)
{
    Put("SWEDISH.LNG");
    machine.files.RefuseOutput("C:\\Quillon\\Language\\NORSK.LNG", 70);
    ask.Expect(
        {BoxKind::Critical, "Fel", "Åtkomst nekas till 'C:\\Quillon\\Language\\NORSK.LNG'."});
    EXPECT_EQ(Add("norsk"), std::nullopt);
}

TEST_F(LanguageFilesTest, HaveNamesThatCanBeFileNames)
{
    Put("SWEDISH.LNG");
    for (const char* typed : {"..\\norsk", "a/b", "a:b", "a*", "a?", "\"a\"", "<a>", "a|b", "con",
                              "com1", "lpt9.lng", "a.lng.", "nul.x"}) {
        const Text name = LanguageFileName(typed);
        ask.Expect({BoxKind::Inform, "Ogiltigt filnamn",
                    "'" + name +
                        "' kan inte vara ett filnamn i Windows. Tecknen \\ / : * ? \" < > | är "
                        "inte tillåtna, och inte heller namn på enheter som CON."});
        EXPECT_EQ(Add(typed), std::nullopt) << typed;
    }
    for (const char* typed : {"console", "com", "com10", "a.b", "lpt0"})
        EXPECT_EQ(Add(typed), LanguageFileName(typed));
}

TEST_F(LanguageFilesTest, HaveNamesThatAProjectHolds)
{
    Put("SWEDISH.LNG");
    EXPECT_TRUE(Add(Text(195, 'a')));
    const Text tooLong = Text(196, 'A').append(".LNG");
    ask.Expect({BoxKind::Inform, "Ogiltigt filnamn",
                Text("'").append(tooLong).append("' är längre än 199 tecken.")});
    EXPECT_FALSE(Add(Text(196, 'a')));
    ask.Expect({BoxKind::Inform, "Ogiltigt filnamn",
                "'日.LNG' innehåller tecken som inte får plats i ett projekt. Byt namn på filen!"});
    EXPECT_FALSE(CanBeLanguageFile("日.LNG", ask));
}

TEST_F(LanguageFilesTest, AreEditedAsTexts)
{
    EditLanguage(machine.host, kTool, "NORSK.LNG", ask);
    EXPECT_THAT(machine.machine.started, ElementsAre(std::pair<Text, Text>(
                                             "NOTEPAD.EXE", "C:\\Quillon\\Language\\NORSK.LNG")));
    machine.machine.startFailure = ErrorNumber::kCannotStart;
    ask.Expect({BoxKind::Critical, "Fel",
                "'NOTEPAD.EXE' kan ej öppnas. Det saknas ett program för den sortens fil."});
    EditLanguage(machine.host, kTool, "NORSK.LNG", ask);
}

TEST_F(LanguageFilesTest, AreAddedInTheUsersFolderWhereTheToolsIsClosed)
{
    const LanguageFolders folders(kTool, "C:\\Data\\Quillon");
    Put("SWEDISH.LNG", "from the tool");
    Put("NORSK.LNG", "from the tool");
    ask.choices = {{{"finska"}}, {{"norsk"}}};
    EXPECT_EQ(AddLanguage(machine.host, folders, ask), "FINSKA.LNG");
    EXPECT_EQ(machine.files.Get("C:\\Data\\Quillon\\Language\\FINSKA.LNG"), "from the tool");
    EXPECT_FALSE(machine.files.FileExists("C:\\Quillon\\Language\\FINSKA.LNG"));
    EXPECT_EQ(AddLanguage(machine.host, folders, ask), "NORSK.LNG");
    EXPECT_THAT(LanguageFiles(machine.files, folders, ask),
                ElementsAre("FINSKA.LNG", "NORSK.LNG", "SWEDISH.LNG"));
    EXPECT_EQ(PathIn(machine.files, folders, "NORSK.LNG"),
              "C:\\Data\\Quillon\\Language\\NORSK.LNG");
    EXPECT_EQ(PathIn(machine.files, folders, "SWEDISH.LNG"), "C:\\Quillon\\Language\\SWEDISH.LNG");
    EXPECT_EQ(PathIn(machine.files, folders, "BORTA.LNG"), "C:\\Quillon\\Language\\BORTA.LNG");
    EditLanguage(machine.host, folders, "FINSKA.LNG", ask);
    ASSERT_FALSE(machine.machine.started.empty());
    EXPECT_EQ(machine.machine.started.back().second, "C:\\Data\\Quillon\\Language\\FINSKA.LNG");
}

} // namespace
} // namespace quillon::test
