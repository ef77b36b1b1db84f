#include "builder/selfextract/older_program.h"

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

TEST_F(OlderProgram, OnAnotherMediumIsNobodysMatter)
{
    desk.Choose(Medium::CompressedCd);
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(desk.Get("self.exe"), "the older program");
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
