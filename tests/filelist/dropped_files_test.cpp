#include "filelist/adding/dropped_files.h"

#include "filelist/list_builder.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class DroppedFiles : public testing::Test {
protected:
    DroppedFiles()
    {
        project.Files.sorted = false;
        machine.files.Put("C:\\Data\\App\\b.txt", "x");
        machine.files.Put("C:\\Data\\App\\Sub\\a.txt", "x");
        machine.files.Put("C:\\Data\\c.txt", "x");
        machine.files.Put("D:\\d.txt", "x");
    }

    std::optional<NewPlaces> Drop(const std::vector<Text>& paths,
                                  const std::vector<Text>& destination,
                                  std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk ask(std::move(boxes));
        ask.choices = {{destination}};
        const auto places = AddDroppedPaths({project, state, machine.host, ask}, paths);
        questions = ask.questions;
        EXPECT_FALSE(ask.busyPointer);
        if (places)
            EXPECT_THAT(ask.statusTexts, ElementsAre("Adderar filer...", ""));
        return places;
    }
    std::vector<Text> Shown() const
    {
        std::vector<Text> shown;
        for (const FileListRow& row : project.Files.rows)
            shown.push_back(row[Destination] + " " + row[Filename]);
        return shown;
    }

    MemoryHost machine;
    Project project;
    OpenProjectState state;
    std::vector<FileQuestion> questions;
};

} // namespace

TEST_F(DroppedFiles, TakesAFileAloneAsASingleOne)
{
    Drop({"C:\\Data\\c.txt"}, {"%DESTDIR"});
    EXPECT_THAT(Shown(), ElementsAre("%DESTDIR c.txt"));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
    Drop({"C:\\Data\\c.txt"}, {"%DESTDIR"}, {{BoxKind::Inform, "Quillon"}});
    EXPECT_EQ(project.Files.rows.size(), 1U);
}

TEST_F(DroppedFiles, ReplacesAFolderAloneWithTheDestination)
{
    Drop({"C:\\Data\\App"}, {"%DESTDIR"});
    EXPECT_THAT(Shown(), ElementsAre("%DESTDIR\\Sub a.txt", "%DESTDIR b.txt"));
}

TEST_F(DroppedFiles, KeepsTheNamesOfFoldersThatComeWithOthers)
{
    Drop({"C:\\Data\\App", "C:\\Data\\c.txt"}, {"%DESTDIR\\Ny"});
    EXPECT_THAT(Shown(), ElementsAre("%DESTDIR\\Ny\\App\\Sub a.txt", "%DESTDIR\\Ny\\App b.txt",
                                     "%DESTDIR\\Ny c.txt"));
}

TEST_F(DroppedFiles, AsksForTheDestinationOnce)
{
    machine.files.Put("C:\\Data\\lib.dll", "x");
    Drop({"C:\\Data\\App", "C:\\Data\\c.txt", "C:\\Data\\lib.dll"}, {});
    ASSERT_EQ(questions.size(), 1U);
    EXPECT_EQ(questions[0].title, "ChooseDestination");
    EXPECT_EQ(questions[0].filter, "oSystemDirectory");
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(DroppedFiles, LeavesDuplicatesOutWithoutAWordWhereThereAreMany)
{
    Drop({"C:\\Data\\App", "C:\\Data\\c.txt"}, {"%DESTDIR"});
    Drop({"C:\\Data\\App", "C:\\Data\\c.txt"}, {"%DESTDIR"});
    EXPECT_EQ(project.Files.rows.size(), 3U);
}

TEST_F(DroppedFiles, LeavesOutASecondFileOfOneNameOnAnEmptyListToo)
{
    machine.files.Put("C:\\Data\\Ny\\c.txt", "other");
    Drop({"C:\\Data\\c.txt", "C:\\Data\\Ny\\c.txt"}, {"%DESTDIR"});
    ASSERT_EQ(project.Files.rows.size(), 1U);
    EXPECT_EQ(project.Files.rows[0][Source], "c:\\data\\c.txt");
}

TEST_F(DroppedFiles, LeavesOutFilesOfTwoFoldersOfOneName)
{
    machine.files.Put("D:\\Mer\\App\\b.txt", "other");
    Drop({"C:\\Data\\App", "D:\\Mer\\App"}, {"%DESTDIR"});
    EXPECT_THAT(Shown(), ElementsAre("%DESTDIR\\App\\Sub a.txt", "%DESTDIR\\App b.txt"));
}

TEST_F(DroppedFiles, NamesTheFolderThatEndedTheWalk)
{
    machine.files.At("C:\\Data\\App\\Sub").unreadable = true;
    Drop({"C:\\Data\\App"}, {"%DESTDIR"},
         {{BoxKind::Critical, "Fel",
           "Ett fel inträffade när filerna adderades till fillistan! Åtkomst nekas till "
           "'C:\\Data\\App\\Sub'."}});
}

TEST_F(DroppedFiles, RefusesFilesOfARootAndTakesTheOthers)
{
    Drop({"D:\\d.txt", "C:\\Data\\c.txt"}, {"%DESTDIR"}, {{BoxKind::Critical, "Kan ej addera"}});
    EXPECT_THAT(Shown(), ElementsAre("%DESTDIR c.txt"));
}

TEST_F(DroppedFiles, AsksNothingWhereNothingIsLeft)
{
    ScriptedAsk ask({{BoxKind::Critical, "Kan ej addera"}});
    EXPECT_FALSE(AddDroppedPaths({project, state, machine.host, ask}, {"D:\\d.txt"}));
}

TEST_F(DroppedFiles, TakesAWholeDrive)
{
    machine.files.Put("D:\\Sub\\e.txt", "x");
    Drop({"D:\\"}, {"%DESTDIR"});
    EXPECT_THAT(Shown(), ElementsAre("%DESTDIR\\Sub e.txt", "%DESTDIR d.txt"));
}

TEST_F(DroppedFiles, TellsOfNamesThatNoProjectCanHold)
{
    machine.files.Put("C:\\Data\\日.txt", "x");
    machine.files.Put("C:\\Data\\a;b.txt", "x");
    Drop({"C:\\Data\\日.txt", "C:\\Data\\a;b.txt", "C:\\Data\\c.txt"}, {"%DESTDIR"},
         {{BoxKind::Critical, "Ogiltiga tecken hittade"},
          {BoxKind::Critical, "Ogiltiga tecken hittade"}});
    EXPECT_THAT(Shown(), ElementsAre("%DESTDIR c.txt"));
}

TEST_F(DroppedFiles, TellsOfAFailureAndKeepsTheRowsSoFar)
{
    Drop({"C:\\Data\\App", "C:\\Data\\borta.txt"}, {"%DESTDIR"},
         {{BoxKind::Critical, "Fel",
           "Ett fel inträffade när filerna adderades till fillistan! Filen 'C:\\Data\\borta.txt' "
           "finns inte."}});
    EXPECT_THAT(Shown(), ElementsAre("%DESTDIR\\App\\Sub a.txt", "%DESTDIR\\App b.txt",
                                     "%DESTDIR borta.txt"));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

TEST_F(DroppedFiles, TellsOnceOfWhatHasNoPathHere)
{
    struct Case {
        std::vector<Text> names;
        Text start;
    };
    const Case cases[] = {{{"http://a/b"}, "'http://a/b' kan ej adderas till fillistan. "},
                          {{"/x/a\\b", "c", "d"}, "'/x/a\\b' och 2 till kan ej adderas till "}};
    for (const Case& given : cases) {
        ScriptedAsk ask({{BoxKind::Critical, "Kan ej addera"}});
        RefuseDropped(ask, given.names);
        EXPECT_THAT(ask.shown[0].text, testing::StartsWith(given.start));
    }
    ScriptedAsk ask;
    RefuseDropped(ask, {});
}

} // namespace quillon::test
