#include "builder/selfextract/files_aside.h"

#include "builder/selfextract/active_delivery.h"
#include "create_desk.h"
#include "formats/self_extraction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

using test::BoxKind;
using test::CreateDesk;
using testing::ElementsAre;

namespace {

const Text kProgram = "C:\\Ut\\self.exe";
const Text kAside = "C:\\Ut\\PROGRAM.OLD\\self.exe";

class OlderProgram : public testing::Test {
protected:
    OlderProgram()
    {
        desk.Choose(Medium::Internet);
        desk.AddFile("b.txt", std::string(5000, 'x'));
        desk.machine.files.Put(kProgram, "the older program");
    }
    void LoseTheExtractor() { desk.machine.files.RemoveFile("C:\\Quillon\\Release\\QNSELFX.EXE"); }
    void ExpectTheOlderOne()
    {
        EXPECT_EQ(desk.Get("self.exe"), "the older program");
        EXPECT_FALSE(desk.machine.files.DirExists("C:\\Ut\\PROGRAM.OLD"));
    }

    CreateDesk desk;
};

} // namespace

TEST_F(OlderProgram, GoesWhenTheNewOneIsThere)
{
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_THAT(desk.Package(), ElementsAre("self.exe"));
    EXPECT_NE(desk.Get("self.exe"), "the older program");
    EXPECT_FALSE(desk.machine.files.DirExists("C:\\Ut\\PROGRAM.OLD"));
}

TEST_F(OlderProgram, StaysWhereTheNewOneCannotBeMade)
{
    LoseTheExtractor();
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    ExpectTheOlderOne();
}

TEST_F(OlderProgram, StaysWhereAFileCannotBePacked)
{
    desk.machine.files.At(desk.project.Files.rows.back()[Source]).unreadable = true;
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    ExpectTheOlderOne();
}

TEST_F(OlderProgram, StaysWhereTheDestinationCannotBeWritten)
{
    desk.machine.files.RefuseOutput("C:\\Ut\\SWEDISH.LNG", 70);
    EXPECT_EQ(desk.Create({{BoxKind::Critical, "Fel"}}), CreateResult::Failed);
    ExpectTheOlderOne();
}

TEST_F(OlderProgram, StaysWhereTheUserDoesNotGoOn)
{
    desk.machine.files.Put("C:\\Ut\\annat.txt", "other");
    EXPECT_EQ(desk.Create({{BoxKind::YesNo, "Katalogen är ej tom", "", Answer::No}}),
              CreateResult::Stopped);
    ExpectTheOlderOne();
}

TEST_F(OlderProgram, IsNotPackedItself)
{
    LoseTheExtractor();
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_EQ(desk.Get("INSTALL.ZIP").find("the older program"), std::string::npos);
}

TEST_F(OlderProgram, ComesBackAfterARunThatWasKilled)
{
    desk.machine.files.RemoveFile(kProgram);
    desk.machine.files.Put(kAside, "the older program");
    LoseTheExtractor();
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    ExpectTheOlderOne();
}

TEST_F(OlderProgram, GoesAfterARunThatWasKilledWhenANewOneIsThere)
{
    desk.machine.files.RemoveFile(kProgram);
    desk.machine.files.Put(kAside, "the older program");
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_THAT(desk.Package(), ElementsAre("self.exe"));
    EXPECT_FALSE(desk.machine.files.DirExists("C:\\Ut\\PROGRAM.OLD"));
}

// Deleted it would be lost even to a user who does not go on, left it would be packed.
TEST_F(OlderProgram, StopsARunThatCannotMoveItAside)
{
    desk.machine.files.Put("C:\\Ut\\PROGRAM.OLD", "a file, no folder");
    EXPECT_EQ(desk.Create({{BoxKind::Critical, "Fel"}}), CreateResult::Failed);
    EXPECT_EQ(desk.Get("self.exe"), "the older program");
    EXPECT_EQ(desk.Get("PROGRAM.OLD"), "a file, no folder");
    EXPECT_EQ(desk.statusLines.back(), "Kan ej skapa!");
}

TEST_F(OlderProgram, OnAnotherMediumIsNobodysMatter)
{
    desk.Choose(Medium::CompressedCd);
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(desk.Get("self.exe"), "the older program");
}

namespace {

constexpr const char* kDescription = "Quillon self-extracting program 1\r\n0=0\r\n";

class TemporaryNames : public testing::Test {
protected:
    TemporaryNames() { desk.Choose(Medium::Internet); }
    void Put(const char* name, const Text& content)
    {
        desk.machine.files.Put(Text("C:\\Ut\\") + name, content);
    }
    bool HasFolderAside() const { return desk.machine.files.DirExists("C:\\Ut\\PROGRAM.OLD"); }

    CreateDesk desk;
};

} // namespace

TEST_F(TemporaryNames, OfAnEarlierRunAreDeleted)
{
    Put("INSTALL.ZIP", "its archive");
    Put("INSTALL.ADX", kDescription);
    Put("annat.txt", "other");
    EXPECT_EQ(desk.Create({{BoxKind::YesNo, "Katalogen är ej tom", "", Answer::No}}),
              CreateResult::Stopped);
    EXPECT_THAT(desk.Package(), ElementsAre("annat.txt"));
}

TEST_F(TemporaryNames, OfTheUsersOwnFilesAreThereAfterwards)
{
    Put("INSTALL.ZIP", "an archive of the user's");
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_THAT(desk.Package(), ElementsAre("INSTALL.ZIP", "self.exe"));
    EXPECT_EQ(desk.Get("INSTALL.ZIP"), "an archive of the user's");
    EXPECT_FALSE(HasFolderAside());
    // Nor was it packed.
    EXPECT_EQ(desk.Get("self.exe").find("an archive of the user's"), std::string::npos);
}

TEST_F(TemporaryNames, OfTheUsersOwnFilesAreThereAfterAFailureAndANo)
{
    Put("INSTALL.ZIP", "an archive of the user's");
    Put("INSTALL.ADX", "a text of the user's");
    desk.machine.files.RemoveFile("C:\\Quillon\\Release\\QNSELFX.EXE");
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_EQ(desk.Get("INSTALL.ZIP"), "an archive of the user's");
    EXPECT_EQ(desk.Get("INSTALL.ADX"), "a text of the user's");
    // The package of the failed run is there.
    EXPECT_EQ(desk.Create({{BoxKind::YesNo, "Katalogen är ej tom", "", Answer::No}}),
              CreateResult::Stopped);
    EXPECT_EQ(desk.Get("INSTALL.ZIP"), "an archive of the user's");
    EXPECT_EQ(desk.Get("INSTALL.ADX"), "a text of the user's");
    EXPECT_FALSE(HasFolderAside());
}

// Killed between the two, a run has moved one of them aside and not the other.
TEST_F(TemporaryNames, AreBothKeptWhereARunWasKilledBetweenThem)
{
    Put("PROGRAM.OLD\\INSTALL.ZIP", "an archive of the user's");
    Put("INSTALL.ADX", "a text of the user's");
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_THAT(desk.Package(), ElementsAre("INSTALL.ADX", "INSTALL.ZIP", "self.exe"));
    EXPECT_EQ(desk.Get("INSTALL.ZIP"), "an archive of the user's");
    EXPECT_EQ(desk.Get("INSTALL.ADX"), "a text of the user's");
    EXPECT_FALSE(HasFolderAside());
}

TEST_F(TemporaryNames, AreRestoredAfterARunThatWasKilled)
{
    Put("PROGRAM.OLD\\INSTALL.ZIP", "an archive of the user's");
    Put("INSTALL.ZIP", "the killed run's");
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_THAT(desk.Package(), ElementsAre("INSTALL.ZIP", "self.exe"));
    EXPECT_EQ(desk.Get("INSTALL.ZIP"), "an archive of the user's");
    EXPECT_FALSE(HasFolderAside());
}

// Of a program that would be larger than Windows starts nothing is left, and the older one stays.
TEST(ActiveDelivery, MakesNoProgramThatIsTooLarge)
{
    CreateDesk desk;
    desk.machine.files.Put("C:\\Ut\\a.txt", "text");
    desk.machine.files.Put(kProgram, "the older program");
    test::ScriptedAsk ask;
    const Text project = "C:\\TEMP\\INSTALL.ADX";
    const auto build = [&](std::uint64_t maxSize) {
        ActiveDelivery delivery(desk.machine.host, ask, "C:\\Quillon\\Release\\QNSELFX.EXE",
                                "C:\\Quillon\\Res\\SelfExtract.ico", maxSize);
        delivery.Method11("C:\\Ut\\*.*", "C:\\TEMP\\INSTALL.ZIP");
        delivery.Method1(project);
        delivery.Method6(project, SelfExtractAttribute::kArchive, "C:\\TEMP\\INSTALL.ZIP");
        delivery.Method6(project, SelfExtractAttribute::kResult, kProgram);
        return delivery.Method10(project);
    };
    EXPECT_EQ(build(1000), ErrorNumber::kOverflow);
    EXPECT_EQ(desk.Get("self.exe"), "the older program");
    EXPECT_THAT(desk.Package(), ElementsAre("a.txt", "self.exe"));
    EXPECT_EQ(build(ActiveDelivery::kMaxProgramSize), 0);
    EXPECT_GT(desk.Get("self.exe").size(), 1000U);
    EXPECT_THAT(desk.Package(), ElementsAre("a.txt", "self.exe"));
}

} // namespace quillon
