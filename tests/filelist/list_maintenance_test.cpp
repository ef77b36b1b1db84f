#include "filelist/list_maintenance.h"

#include "filelist/list_builder.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;

namespace {

class ListMaintenance : public testing::Test {
protected:
    ListWork Work(ScriptedAsk& ask) { return {project, state, machine.host, ask}; }
    std::vector<FileListRow>& Rows() { return project.Files.rows; }

    MemoryHost machine;
    Project project;
    OpenProjectState state;
};

class AddEmptyDirectory : public ListMaintenance {
protected:
    std::optional<NewPlaces> Answer(std::vector<Text> answer, std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk ask(std::move(boxes));
        ask.choices = {{std::move(answer)}};
        const auto places = AddEmptyDirectoryCommand(Work(ask));
        EXPECT_EQ(ask.questions[0].title, "Addera tom katalog");
        EXPECT_EQ(ask.questions[0].filter, "&Katalog:");
        return places;
    }
};

class UpdateFileList : public ListMaintenance {
protected:
    /// True when the list was shown.
    bool Run(bool filesAreMissing)
    {
        std::deque<ExpectedBox> boxes;
        if (filesAreMissing)
            boxes.push_back(
                {BoxKind::Warn, "Filer saknas",
                 "En eller flera filer har försvunnit från källkatalogen sedan du lade in dessa i "
                 "fillistan! De filer som saknas har markerats med <Filen saknas> i kolumnen "
                 "'Destination'. Du bör radera bort dessa från fillistan (och sedan eventuellt "
                 "lägga in dom på nytt om de är flyttade till en annan katalog)."});
        ScriptedAsk ask(std::move(boxes));
        bool isShown = false;
        UpdateFileListCommand(Work(ask), [&](const NewPlaces& newPlaces) {
            EXPECT_TRUE(ask.shown.empty()) << "the box comes behind the list";
            places = newPlaces;
            isShown = true;
        });
        if (isShown)
            EXPECT_THAT(ask.statusTexts, ElementsAre("Uppdaterar fillista...", ""));
        return isShown;
    }

    NewPlaces places;
};

class DeleteRows : public ListMaintenance {
protected:
    bool Delete(const std::vector<std::size_t>& selected, const Text& text,
                quillon::Answer answer = Answer::Yes)
    {
        ScriptedAsk ask({{BoxKind::YesNo, "Fillista", text, answer}});
        const bool gone = DeleteRowsCommand(Work(ask), selected);
        EXPECT_THAT(ask.stops, ElementsAre(Ask::Stops::OnNo));
        return gone;
    }
};

constexpr const char* kDeleteOne = "Vill du ta bort det markerade objektet från listan?";
constexpr const char* kDeleteMany = "Vill du ta bort de markerade objekten från listan?";

} // namespace

TEST_F(AddEmptyDirectory, MakesARowWithoutAFile)
{
    EXPECT_EQ(Answer({"%DESTDIR\\Temp"}), NewPlaces{0});
    ASSERT_EQ(Rows().size(), 1U);
    EXPECT_EQ(Rows()[0], MakeRow("<Dir>", "%DESTDIR\\Temp"));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

TEST_F(AddEmptyDirectory, TakesTheAnswerAsItStandsAndTwice)
{
    for (const char* const answer : {"a b", " %destdir\\ ", "a b"})
        EXPECT_TRUE(Answer({answer}));
    EXPECT_EQ(Rows().size(), 3U);
    EXPECT_EQ(Rows()[0][Destination], "a b");
    EXPECT_EQ(Rows()[1][Destination], " %destdir\\ ");
    EXPECT_EQ(Rows()[2][Destination], "a b");
}

TEST_F(AddEmptyDirectory, RefusesWhatWouldBreakTheProjectOrLeadElsewhere)
{
    EXPECT_FALSE(Answer({"a;b"}, {{BoxKind::Critical, "Ogiltiga tecken hittade",
                                   "Katalogen innehåller ogiltiga tecken! Semikolon kan inte "
                                   "användas, eftersom det skiljer fälten i projektfilen åt."}}));
    EXPECT_FALSE(Answer({"%DESTDIR\\.."}, {{BoxKind::Critical, "Ogiltig destinationskatalog",
                                            "Destinationen '%DESTDIR\\..' fungerar inte i Windows: "
                                            "'..' får inte ingå."}}));
    EXPECT_FALSE(
        Answer({"%DESTDIR\\a\r\nb"}, {{BoxKind::Critical, "Ogiltig destinationskatalog"}}));
    EXPECT_TRUE(Rows().empty());
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(AddEmptyDirectory, GoesWhereTheOrderPutsIt)
{
    project.Files = MakeList({MakeRow("a.txt"), MakeRow("b.txt")});
    EXPECT_EQ(Answer({"%DESTDIR\\Temp"}), (NewPlaces{1, 2, 0}));
}

TEST_F(AddEmptyDirectory, ChangesNothingWithoutAnAnswer)
{
    EXPECT_FALSE(Answer({}));
    EXPECT_FALSE(Answer({""}));
    EXPECT_TRUE(Rows().empty());
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(AddEmptyDirectory, RefusesARowBeyondTheLast)
{
    Rows().resize(kMaxRows, MakeRow("x"));
    EXPECT_FALSE(Answer({"%DESTDIR\\Temp"},
                        {{BoxKind::Critical, "Fel",
                          "Fillistan rymmer högst 32767 rader. Katalogen '%DESTDIR\\Temp' kan ej "
                          "adderas till fillistan!"}}));
    EXPECT_EQ(Rows().size(), kMaxRows);
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(UpdateFileList, EndsAtOnceOnAnEmptyList)
{
    EXPECT_FALSE(Run(false));
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(UpdateFileList, BringsSizeDateAndTimeInLine)
{
    machine.files.Put("C:\\D\\a.txt", std::string(1536, 'x'), {2005, 1, 2, 3, 4, 0});
    FileListRow row = MakeRow("A.txt", "%DESTDIR", "c:\\d\\a.txt");
    row[CopyOptions] = "DV";
    row[ComponentNumber] = "2";
    row[IconMarker] = "IkonD";
    row[IconDesc] = "Beskrivning";
    FileListRow expected = row;
    expected[Size] = "1,5";
    expected[Date] = "2005-01-02";
    expected[Time] = "03:04";
    Rows() = {row};
    EXPECT_TRUE(Run(false));
    EXPECT_EQ(Rows()[0], expected);
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

TEST_F(UpdateFileList, MarksAFileThatIsGone)
{
    FileListRow row;
    for (Text& column : row.columns)
        column.assign(1, 'x');
    row[Filename] = "a.txt";
    row[Source] = "c:\\d\\a.txt";
    Rows() = {row};
    EXPECT_TRUE(Run(true));
    EXPECT_THAT(Rows()[0].columns, ElementsAre("a.txt", "<Filen saknas>", "0", "", "", "", "", "",
                                               "", "c:\\d\\a.txt", "", "", "", "", ""));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
    EXPECT_TRUE(Run(true)) << "and says so again the next time";
}

TEST_F(UpdateFileList, TakesAFolderInAFilesPlaceForAMissingFile)
{
    machine.files.PutFolder("C:\\D\\a.txt");
    Rows() = {MakeRow("a.txt", "%DESTDIR", "c:\\d\\a.txt")};
    EXPECT_TRUE(Run(true));
}

TEST_F(UpdateFileList, LeavesAFileMarkedThatCameBack)
{
    Rows() = {MakeRow("a.txt", "%DESTDIR", "c:\\d\\a.txt")};
    Run(true);
    machine.files.Put("C:\\D\\a.txt", "x", {2005, 1, 2, 3, 4, 0});
    EXPECT_TRUE(Run(false));
    EXPECT_THAT(Rows()[0].columns,
                ElementsAre("a.txt", "<Filen saknas>", "0,0", "2005-01-02", "03:04", "", "", "", "",
                            "c:\\d\\a.txt", "", "", "", "", ""));
}

TEST_F(UpdateFileList, MarksWhatIsLeftOfAFileThatCouldNotBeAdded)
{
    Rows() = {MakeRow("a.txt", "%DESTDIR"), MakeRow("<Dir>", "%DESTDIR\\Temp")};
    project.Files.sorted = false;
    EXPECT_TRUE(Run(true));
    EXPECT_EQ(Rows()[0][Destination], "<Filen saknas>");
    EXPECT_EQ(Rows()[0][Size], "0");
    EXPECT_EQ(Rows()[1], MakeRow("<Dir>", "%DESTDIR\\Temp"));
}

TEST_F(UpdateFileList, DoesNotTouchEmptyFolders)
{
    Rows() = {MakeRow("<Dir>", "%DESTDIR\\Temp")};
    EXPECT_TRUE(Run(false));
    EXPECT_EQ(Rows()[0], MakeRow("<Dir>", "%DESTDIR\\Temp"));
}

TEST_F(UpdateFileList, KeepsTheOrderOfTheList)
{
    machine.files.Put("C:\\D\\a.txt", "x", {2005, 1, 1, 0, 0, 0});
    machine.files.Put("C:\\D\\b.txt", "x", {2004, 1, 1, 0, 0, 0});
    project.Files = MakeList({MakeRow("a.txt", "%DESTDIR", "c:\\d\\a.txt"),
                              MakeRow("b.txt", "%DESTDIR", "c:\\d\\b.txt")});
    project.Files.sortKey = Date;
    Run(false);
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("b.txt", "a.txt"));
    EXPECT_EQ(places, (NewPlaces{1, 0}));
}

TEST_F(DeleteRows, DoesNothingWithoutASelection)
{
    ScriptedAsk ask;
    Rows() = {MakeRow("a.txt")};
    EXPECT_FALSE(DeleteRowsCommand(Work(ask), {}));
    EXPECT_EQ(Rows().size(), 1U);
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(DeleteRows, TakesOneRowOut)
{
    Rows() = {MakeRow("a.txt"), MakeRow("b.txt")};
    EXPECT_TRUE(Delete({0}, kDeleteOne));
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("b.txt"));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

TEST_F(DeleteRows, TakesManyRowsOutEmptyFoldersToo)
{
    Rows() = {MakeRow("a"), MakeRow("b"), MakeRow("<Dir>"), MakeRow("c"), MakeRow("d")};
    EXPECT_TRUE(Delete({1, 2, 4}, kDeleteMany));
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("a", "c"));
}

TEST_F(DeleteRows, LeavesTheRowsOnNo)
{
    Rows() = {MakeRow("a"), MakeRow("b")};
    EXPECT_FALSE(Delete({0}, kDeleteOne, Answer::No));
    EXPECT_FALSE(Delete({0, 1}, kDeleteMany, Answer::No));
    EXPECT_EQ(Rows().size(), 2U);
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(ListMaintenance, GivesSelectedRowsAnotherDestination)
{
    Rows() = {MakeRow("a", "%DESTDIR"), MakeRow("<Dir>", "%WINDIR"), MakeRow("c", "%SYSDIR")};
    ScriptedAsk ask;
    ask.choices = {{{"%FONTDIR"}}};
    EXPECT_THAT(*ChangeDestinationCommand(Work(ask), std::vector<std::size_t>{0, 1}),
                ElementsAre(1, 0, 2))
        << "the names rule the order, and \"<\" stands before letters";
    EXPECT_EQ(ask.questions[0].folder, "%DESTDIR");
    EXPECT_EQ(ask.questions[0].filter, "oUserDirectory");
    EXPECT_EQ(Rows()[0][Destination], "%FONTDIR");
    EXPECT_EQ(Rows()[1][Destination], "%FONTDIR");
    EXPECT_EQ(Rows()[2][Destination], "%SYSDIR");
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

TEST_F(ListMaintenance, ProposesTheDestinationOfASingleRow)
{
    Rows() = {MakeRow("a", "%DESTDIR"), MakeRow("b", "%SYSDIR\\Sub")};
    ScriptedAsk ask;
    ask.choices = {{}};
    EXPECT_FALSE(ChangeDestinationCommand(Work(ask), std::vector<std::size_t>{1}));
    EXPECT_EQ(ask.questions[0].folder, "%SYSDIR\\Sub");
    EXPECT_EQ(Rows()[1][Destination], "%SYSDIR\\Sub");
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(ListMaintenance, PutsRowsWhereTheirNewDestinationBelongs)
{
    Rows() = {MakeRow("x", "%A"), MakeRow("y", "%B"), MakeRow("z", "%C")};
    project.Files.sortKey = Destination;
    ScriptedAsk ask;
    ask.choices = {{{"%D"}}};
    EXPECT_THAT(*ChangeDestinationCommand(Work(ask), std::vector<std::size_t>{0}),
                ElementsAre(2, 0, 1));
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("y", "z", "x"));
}

TEST_F(ListMaintenance, AsksForNoDestinationWithoutRows)
{
    ScriptedAsk ask;
    EXPECT_FALSE(ChangeDestinationCommand(Work(ask), {}));
    Rows() = {MakeRow("a")};
    EXPECT_FALSE(ChangeDestinationCommand(Work(ask), {}));
    EXPECT_TRUE(ask.questions.empty());
}

TEST_F(ListMaintenance, TellsAllDestinationsInTheirOrder)
{
    EXPECT_THAT(DestinationsOf(project.Files), testing::IsEmpty());
    Rows() = {MakeRow("a", "%WINDIR"),     MakeRow("b", "%DESTDIR"), MakeRow("c", ""),
              MakeRow("d", "%DESTDIR\\Å"), MakeRow("e", "%DESTDIR"), MakeRow("f", "%WINDIR")};
    project.Files.sortKey = IconMarker;
    project.Files.sortDescending = true;
    const FileList before = project.Files;
    EXPECT_THAT(DestinationsOf(project.Files), ElementsAre("%DESTDIR", "%DESTDIR\\Å", "%WINDIR"));
    EXPECT_EQ(project.Files.rows, before.rows) << "looking changes no order";
    EXPECT_EQ(project.Files.sortKey, IconMarker);
}

// Kept: a row is compared only with the one before it, and with case.
TEST_F(ListMaintenance, TellsDestinationsInCapitalsAndSmallLettersEach)
{
    Rows() = {MakeRow("a", "%DESTDIR\\X"), MakeRow("b", "%destdir\\x")};
    EXPECT_THAT(DestinationsOf(project.Files), ElementsAre("%DESTDIR\\X", "%destdir\\x"));
}

} // namespace quillon::test
