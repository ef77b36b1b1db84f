#include "diagnos/diagnosis.h"

#include "support/memory_host.h"

namespace quillon::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class DiagnosisTest : public testing::Test {
protected:
    std::vector<Text> Lines()
    {
        return DiagnosisLines(
            system, {"1920 x 1080, 150 %", "6.4.2"}, machine.host,
            [this](const Text& root) { return sizes[root]; }, "C:\\Quillon");
    }

    MemoryHost machine;
    std::map<Text, std::optional<std::uint64_t>> sizes;
    SystemDescription system{.system = "Debian 12, Linux 6.1",
                             .processor = "x86_64",
                             .processorCount = 2,
                             .memory = 8ULL << 30U,
                             .freeMemory = 3ULL << 29U,
                             .language = "sv_SE.UTF-8",
                             .codePage = "UTF-8",
                             .desktop = ""};
};

TEST_F(DiagnosisTest, DescribesTheSystemShortlyInLinesSixAndEight)
{
    const auto lines = Lines();
    ASSERT_GE(lines.size(), 8U);
    EXPECT_EQ(lines[5], "Operativsystem:       Debian 12, Linux 6.1");
    EXPECT_EQ(lines[7], "Dator:                x86_64, 2 processorer, 8,0 GB minne");
}

TEST_F(DiagnosisTest, TellsOfLanguageScreenAndMemory)
{
    const auto lines = Lines();
    for (const char* line :
         {"Skapad 2004-03-01 14:25:36", "Programversion:       6.5.6",
          "Ledigt minne:         1,5 GB", "Språk:                sv_SE.UTF-8",
          "Teckenkod:            UTF-8", "Skrivbordsmiljö:      -",
          "Skärm:                1920 x 1080, 150 %", "Qt:                   6.4.2"})
        EXPECT_THAT(lines, Contains(line));
}

TEST_F(DiagnosisTest, ListsTheToolsFilesWithTheirDigests)
{
    machine.files.Put("C:\\Quillon\\quillonc", "abc");
    machine.files.Put("C:\\Quillon\\Release\\SETUP32.EXE", "");
    machine.files.Put("C:\\Quillon\\Projects\\hemligt.qnp", "x");
    const auto lines = Lines();
    // The digests are those of the standard's examples.
    EXPECT_THAT(
        lines,
        Contains("quillonc  3  ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"));
    EXPECT_THAT(lines,
                Contains("Release\\SETUP32.EXE  0  "
                         "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"));
    EXPECT_THAT(lines, Each(Not(HasSubstr("hemligt"))));
}

TEST_F(DiagnosisTest, LeavesSecretsOfTheSettingsOut)
{
    EXPECT_THAT(Lines(), Contains("(inga)"));
    machine.files.Put("C:\\Data\\Roaming\\Quillon\\QUILLON.INI",
                      "[Options]\r\nCBarsCurrentStyle=3\r\nSignPassword=hemligt\r\n");
    const auto lines = Lines();
    // Lines may end in a line feed alone.
    machine.files.Put("C:\\Data\\Roaming\\Quillon\\QUILLON.INI", "[A]\nB=1\nPassword=hemligt\n");
    EXPECT_THAT(Lines(), Contains("Password=(utelämnat)"));
    EXPECT_THAT(Lines(), Each(Not(HasSubstr("hemligt"))));
    EXPECT_THAT(lines, Contains("CBarsCurrentStyle=3"));
    EXPECT_THAT(lines, Contains("SignPassword=(utelämnat)"));
    EXPECT_THAT(lines, Each(Not(HasSubstr("hemligt"))));
}

TEST_F(DiagnosisTest, ListsNoMoreFilesThanAReportCanHold)
{
    machine.files.PutFolder("C:\\Quillon");
    const std::size_t linesWithoutFiles = Lines().size();
    for (int i = 0; i < 2100; ++i)
        machine.files.Put("C:\\Quillon\\Res\\f" + std::to_string(i), "");
    const auto lines = Lines();
    // The folder counts as one of the 2000, and a last line says that there are more.
    EXPECT_EQ(lines.size(), linesWithoutFiles + 1999 + 1);
    EXPECT_EQ(lines.back(), "... och fler");
}

TEST_F(DiagnosisTest, EndsInFoldersThatLeadDeeperAndDeeper)
{
    Text deep = "C:\\Quillon";
    for (int i = 0; i < 20; ++i)
        deep += "\\d" + std::to_string(i);
    machine.files.Put(deep + "\\f", "");
    EXPECT_THAT(Lines(), Each(Not(HasSubstr("d19"))));
}

TEST_F(DiagnosisTest, TellsOfTheRoomOfEachDisk)
{
    machine.files.driveKinds = {{"c:\\", DriveKind::Fixed}, {"d:\\", DriveKind::Remote}};
    machine.files.capacities = {{"c:\\", 3ULL << 30U}, {"d:\\", 1ULL << 30U}};
    sizes = {{"C:\\", 500ULL << 30U}};
    const auto lines = Lines();
    EXPECT_THAT(lines, Contains("C:\\:                  3,0 GB lediga av 500,0 GB"));
    EXPECT_THAT(lines, Contains("D:\\:                  1,0 GB lediga"));
}

TEST_F(DiagnosisTest, TellsWhatCanNotBeRead)
{
    machine.files.Put("C:\\Quillon\\quillonc", "abc");
    machine.files.At("C:\\Quillon\\quillonc").unreadable = true;
    EXPECT_THAT(Lines(), Contains(StartsWith("quillonc  3  (Fel #")));
}

TEST(DiagnosisCommandTest, TakesItsSwitchesAndIgnoresOthers)
{
    const DiagnosisCommand command =
        ReadDiagnosisCommand({"/X", "/To=D:\\a b.txt", "/Screen=1 x 1, 100 %", "/Qt=6", "/Ny=1"});
    EXPECT_EQ(command.file, "D:\\a b.txt");
    EXPECT_EQ(command.caller.screen, "1 x 1, 100 %");
    EXPECT_EQ(command.caller.qtVersion, "6");
    EXPECT_EQ(ReadDiagnosisCommand({"/X"}).file, "");
}

TEST(SystemDescriptionTest, DescribesThisMachine)
{
    const SystemDescription system = DescribeSystem();
    EXPECT_NE(system.system, "");
    EXPECT_NE(system.processor, "");
    EXPECT_GT(system.processorCount, 0);
    EXPECT_NE(system.codePage, "");
}

} // namespace
} // namespace quillon::test
