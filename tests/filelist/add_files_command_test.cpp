#include "filelist/adding/add_files_command.h"

#include "filelist/list_builder.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* kInRoot =
    "Filer kan endast adderas från underkataloger på hårddisken till fillistan, ej från "
    "rotkataloger. Vill du addera en fil som befinner sig i en rotkatalog kan du kopiera den till "
    "en underkatalog och sedan addera den på nytt.";

class AddFilesCommandTest : public testing::Test {
protected:
    std::optional<NewPlaces> Run()
    {
        return AddFilesCommand({project, state, machine.host, ask}, lastDirectory);
    }
    /// The user picks these files and then leaves the destination as it is proposed to be.
    void Pick(const std::vector<Text>& paths, const Text& destination = "%DESTDIR")
    {
        for (const Text& path : paths)
            if (!machine.files.FileExists(path))
                machine.files.Put(path, "x");
        ask.choices.push_back({paths});
        ask.choices.push_back({{destination}});
    }
    const std::vector<FileListRow>& Rows() const { return project.Files.rows; }
    void UseComponent(std::size_t number, const Text& name)
    {
        project.FileComponents[number - 1].Comp = kOn;
        project.FileComponents[number - 1].CompName = name;
    }

    MemoryHost machine;
    ScriptedAsk ask;
    Project project;
    OpenProjectState state;
    Text lastDirectory = "C:\\";
};

class AddFilesBoxes : public AddFilesCommandTest {
protected:
    std::optional<NewPlaces> RunWith(std::deque<ExpectedBox> boxes)
    {
        ScriptedAsk scripted(std::move(boxes));
        scripted.choices = std::move(ask.choices);
        ask.choices.clear();
        return AddFilesCommand({project, state, machine.host, scripted}, lastDirectory);
    }
};

} // namespace

TEST_F(AddFilesCommandTest, OpensTheFileDialogWhereFilesWereLastTaken)
{
    lastDirectory = "D:\\Sist";
    ask.choices.push_back({});
    EXPECT_FALSE(Run());
    ASSERT_EQ(ask.questions.size(), 1U);
    EXPECT_EQ(ask.questions[0].title, "Addera filer");
    EXPECT_EQ(ask.questions[0].folder, "D:\\Sist");
    EXPECT_EQ(ask.questions[0].fileName, "*.*");
    EXPECT_EQ(ask.questions[0].filter,
              "Alla filer (*.*)|*.*|Exekverbara filer (*.exe;*.dll;*.ocx;*.vbx)|"
              "*.exe;*.dll;*.ocx;*.vbx|ActiveX (*.ocx)|*.ocx|Dynamic Link Libraries (*.dll)|*.dll|"
              "Hjälp-filer (*.hlp)|*.hlp|Word-dokument (*.doc)|*.doc|Textfiler (*.txt)|*.txt|"
              "Ikon-filer (*.ico)|*.ico");
}

TEST_F(AddFilesCommandTest, ChangesNothingWhenCancelledInTheFileDialog)
{
    ask.choices.push_back({});
    EXPECT_FALSE(Run());
    EXPECT_EQ(state.ProjectIsDirty, kOff);
    EXPECT_EQ(lastDirectory, "C:\\");
}

TEST_F(AddFilesCommandTest, AddsASingleFile)
{
    machine.files.Put("C:\\Data\\Läs.txt", std::string(2048, 'x'), {2004, 2, 9, 7, 5, 0});
    Pick({"C:\\Data\\Läs.txt"}, "%DESTDIR\\Text");
    EXPECT_EQ(Run(), NewPlaces{0});
    ASSERT_EQ(Rows().size(), 1U);
    EXPECT_THAT(Rows()[0].columns,
                ElementsAre("Läs.txt", "%DESTDIR\\Text", "2,0", "2004-02-09", "07:05", "", "D", "",
                            "txt", "c:\\data\\läs.txt", "", "", "", "", ""));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
    EXPECT_EQ(lastDirectory, "C:\\Data");
}

TEST_F(AddFilesCommandTest, AddsManyFilesInTheOrderOfTheList)
{
    project.Files = MakeList({MakeRow("m.txt")});
    Pick({"C:\\Data\\z.txt", "C:\\Data\\a.txt"});
    EXPECT_EQ(Run(), (NewPlaces{1, 2, 0})) << "where m.txt, z.txt and a.txt stand now";
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("a.txt", "m.txt", "z.txt"));
}

TEST_F(AddFilesCommandTest, ProposesADestinationByTheNamesOfAllFilesTogether)
{
    struct Case {
        std::vector<Text> paths;
        Text folder;
        Text option;
    };
    const Case cases[] = {
        {{"C:\\D\\b.txt"}, "%DESTDIR", "oUserDirectory"},
        {{"C:\\D\\a.dll"}, "", "oSystemDirectory"},
        {{"C:\\D\\a.ocx"}, "", "oSystemDirectory"},
        {{"C:\\D\\b.txt", "C:\\D\\a.dll"}, "", "oSystemDirectory"},
        {{"C:\\D\\A.DLL"}, "%DESTDIR", "oUserDirectory"},
        {{"C:\\D\\A.OCX"}, "%DESTDIR", "oUserDirectory"},
        {{"C:\\D\\A.TTF"}, "%FONTDIR", "oUserDirectory"},
        {{"C:\\D\\a.ttf", "C:\\D\\b.txt"}, "%FONTDIR", "oUserDirectory"},
        {{"C:\\D\\a.Ttf"}, "%DESTDIR", "oUserDirectory"},
        {{"C:\\D\\a.ttf", "C:\\D\\a.dll"}, "", "oSystemDirectory"},
        {{"C:\\x.dll\\b.txt"}, "", "oSystemDirectory"},
        {{"c:\\windows\\system32\\b.txt"}, "", "oSystemDirectory"},
        {{"C:\\Windows\\System32\\b.txt", "C:\\Windows\\System32\\c.txt"}, "", "oSystemDirectory"},
        {{"C:\\Windows\\b.txt"}, "%DESTDIR", "oUserDirectory"},
    };
    for (const Case& given : cases) {
        ask.questions.clear();
        ask.choices = {{given.paths}, {}};
        EXPECT_FALSE(Run());
        ASSERT_EQ(ask.questions.size(), 2U);
        EXPECT_EQ(ask.questions[1].title, "ChooseDestination");
        EXPECT_EQ(ask.questions[1].folder, given.folder) << given.paths[0];
        EXPECT_EQ(ask.questions[1].filter, given.option) << given.paths[0];
    }
    EXPECT_THAT(Rows(), IsEmpty()) << "a cancelled destination adds no row";
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(AddFilesCommandTest, AsksForTheComponentWhereOneIsInUse)
{
    UseComponent(2, "Hjälp");
    UseComponent(5, "Bilder");
    machine.files.Put("C:\\D\\a.txt", "x");
    ask.choices = {{{"C:\\D\\a.txt"}}, {{"Komponent nr 5 - 'Bilder'"}}, {{"%COMPDIR5\\Sub"}}};
    EXPECT_TRUE(Run());
    EXPECT_EQ(ask.questions[1].title, "ChooseComponent");
    EXPECT_EQ(ask.questions[1].filter,
              "Ingen komponent|Komponent nr 2 - 'Hjälp'|Komponent nr 5 - 'Bilder'");
    EXPECT_EQ(ask.questions[2].folder, "%COMPDIR5");
    EXPECT_EQ(Rows()[0][Destination], "%COMPDIR5\\Sub");
    EXPECT_EQ(Rows()[0][ComponentNumber], "5");
}

TEST_F(AddFilesCommandTest, TakesTheMainFolderForNoComponent)
{
    UseComponent(2, "Hjälp");
    machine.files.Put("C:\\D\\a.txt", "x");
    ask.choices = {{{"C:\\D\\a.txt"}}, {{"Ingen komponent"}}, {{"%DESTDIR"}}};
    EXPECT_TRUE(Run());
    EXPECT_EQ(ask.questions[2].folder, "%DESTDIR");
    EXPECT_EQ(Rows()[0][ComponentNumber], "");
}

TEST_F(AddFilesCommandTest, EndsWhenTheComponentIsCancelled)
{
    UseComponent(2, "Hjälp");
    ask.choices = {{{"C:\\D\\a.txt"}}, {}};
    EXPECT_FALSE(Run());
    EXPECT_EQ(ask.questions.size(), 2U) << "no destination is asked for";
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(AddFilesCommandTest, SendsAFontToTheFontFolderWhateverWasChosen)
{
    Pick({"C:\\D\\a.ttf"}, "%DESTDIR");
    Run();
    EXPECT_EQ(Rows()[0][Destination], "%FONTDIR");
}

TEST_F(AddFilesCommandTest, PassesOverNamesThatAreDrives)
{
    Pick({"C:\\D\\a.txt", "C:\\D\\c:", "C:\\D\\å:b", "C:\\D\\b.txt"});
    Run();
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("a.txt", "b.txt"));
}

TEST_F(AddFilesBoxes, RefusesFilesOfARootOnceTheDestinationIsChosen)
{
    for (const std::vector<Text>& paths :
         {std::vector<Text>{"C:\\file.txt"}, std::vector<Text>{"C:\\a.txt", "C:\\b.txt"}}) {
        Pick(paths);
        EXPECT_FALSE(RunWith({{BoxKind::Critical, "Kan ej addera", kInRoot}}));
        EXPECT_THAT(Rows(), IsEmpty());
        EXPECT_EQ(state.ProjectIsDirty, kOff);
        EXPECT_EQ(lastDirectory, "C:\\");
    }
    Pick({"C:\\Sub\\file.txt"});
    EXPECT_TRUE(RunWith({}));
    EXPECT_EQ(Rows().size(), 1U);
}

TEST_F(AddFilesBoxes, TellsOfADuplicateInASingleSelectionOnly)
{
    Pick({"C:\\D\\a.txt"});
    RunWith({});
    Pick({"C:\\D\\a.txt"});
    RunWith({{BoxKind::Inform, "Quillon"}});
    EXPECT_EQ(Rows().size(), 1U);
    Pick({"C:\\D\\a.txt", "C:\\D\\b.txt"});
    RunWith({});
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("a.txt", "b.txt"));
}

TEST_F(AddFilesBoxes, SearchesNoDuplicatesWhenManyFilesComeToAnEmptyList)
{
    Pick({"C:\\D\\a.txt", "C:\\D\\a.txt"});
    RunWith({});
    EXPECT_EQ(Rows().size(), 2U);
}

TEST_F(AddFilesBoxes, SearchesDuplicatesAmongFilesOfSeveralFolders)
{
    Pick({"C:\\One\\a.txt", "C:\\Two\\A.TXT", "C:\\Two\\b.txt"});
    RunWith({});
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("a.txt", "b.txt"));
}

TEST_F(AddFilesBoxes, KeepsTheRowsFromBeforeAFailure)
{
    Pick({"C:\\D\\a.txt", "C:\\D\\b.txt", "C:\\D\\c.txt"});
    machine.files.RemoveFile("C:\\D\\b.txt");
    EXPECT_TRUE(RunWith(
        {{BoxKind::Critical, "Fel", "Ett fel inträffade när filerna adderades till fillistan!"}}));
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("a.txt", "b.txt"))
        << "the row of the failed file stays as far as it was filled";
    EXPECT_EQ(state.ProjectIsDirty, kOn) << "the list has changed";
    EXPECT_EQ(lastDirectory, "C:\\") << "but that was no success";
}

TEST_F(AddFilesBoxes, FailsAtTheLastRowThatAListHolds)
{
    project.Files.rows.resize(kMaxRows - 1, MakeRow("x"));
    Pick({"C:\\D\\a.txt", "C:\\D\\b.txt"});
    RunWith(
        {{BoxKind::Critical, "Fel", "Ett fel inträffade när filerna adderades till fillistan!"}});
    EXPECT_EQ(Rows().size(), kMaxRows);
}

TEST_F(AddFilesBoxes, TellsOfASourceThatNoProjectCanHold)
{
    Pick({"C:\\D\\a;b.txt", "C:\\D\\日.txt", "C:\\D\\c.txt"});
    RunWith({{BoxKind::Critical, "Ogiltiga tecken hittade",
              "Källsökvägen till filen 'C:\\D\\a;b.txt' innehåller ogiltiga tecken! Filen kan ej "
              "adderas till fillistan!"},
             {BoxKind::Critical, "Ogiltiga tecken hittade"}});
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("c.txt"));
}

} // namespace quillon::test
