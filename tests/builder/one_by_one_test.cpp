#include "builder/one_by_one.h"

#include "archive/zip_reader.h"
#include "create_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

using test::CreateDesk;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

class OneByOne : public testing::Test {
protected:
    OneByOne()
    {
        desk.form.KeepCompressedFilesOneAndOne = 1;
        desk.form.UseCompression = 0;
        desk.AddFile("b.txt", "b", "%DESTDIR\\Doc\\");
        desk.project.Files.rows.emplace_back();
        desk.project.Files.rows.back()[Filename] = kEmptyFolderName;
        desk.project.Files.rows.back()[Destination] = "%DESTDIR\\Tom";
    }

    void Copy()
    {
        desk.With([&](CreateRun& run) {
            CopyFilesOneByOne(run);
            isIncomplete = run.isIncomplete;
            return true;
        });
    }

    CreateDesk desk;
    bool isIncomplete = false;
};

class ProgressAsk : public test::ScriptedAsk {
public:
    void ShowProgress(std::uint64_t done, std::uint64_t total) override
    {
        steps.emplace_back(done, total);
    }

    std::vector<std::pair<std::uint64_t, std::uint64_t>> steps;
};

TEST_F(OneByOne, TellsHowFarItIs)
{
    desk.project.Files.rows.clear();
    desk.AddFile("a.bin", Text(300, 'a'));
    desk.AddFile("b.bin", Text(100, 'b'));
    ProgressAsk ask;
    CompressionInterface compression(desk.machine.host, ask, desk.disks);
    CreateRun run{desk.project, desk.state,  desk.form, desk.options, desk.machine.host,
                  ask,          compression, {},        "C:\\Ut"};
    CopyFilesOneByOne(run);
    using Steps = std::vector<std::pair<std::uint64_t, std::uint64_t>>;
    EXPECT_EQ(ask.steps, (Steps{{300, 400}, {400, 400}, {0, 0}}));
}

} // namespace

TEST_F(OneByOne, MarksTheNamesInAFolderOfTheirOwn)
{
    Copy();
    EXPECT_THAT(desk.statusLines,
                ElementsAre("Skapar 'C:\\Ut\\SetupFiles'", "Kopierar 'a.txt'", "Kopierar 'b.txt'"));
    EXPECT_THAT(desk.Package(), UnorderedElementsAre("SetupFiles\\a.txt_", "SetupFiles\\b.txt_"));
    EXPECT_EQ(desk.Get("SetupFiles\\b.txt_"), "b");
    EXPECT_FALSE(isIncomplete);
}

TEST_F(OneByOne, TellsThatTheFolderWasThere)
{
    desk.machine.files.PutFolder("C:\\Ut\\SetupFiles");
    Copy();
    EXPECT_EQ(desk.statusLines.front(),
              "Katalogen 'C:\\Ut\\SetupFiles' existerar redan. Behöver ej skapa.");
}

TEST_F(OneByOne, LiesBesideTheRuntimeWithoutThatFolder)
{
    desk.options.PlaceCompressedFilesInFolderSetupFiles = kOff;
    Copy();
    EXPECT_THAT(desk.statusLines, ElementsAre("Kopierar 'a.txt'", "Kopierar 'b.txt'"));
    EXPECT_THAT(desk.Package(), UnorderedElementsAre("a.txt_", "b.txt_"));
}

TEST_F(OneByOne, KeepsTheFolderTreeWithPlainNames)
{
    desk.options.CreateFolderStructureInFolderSetupFiles = kOn;
    desk.AddFile("c.txt", "c", "Data");
    Copy();
    EXPECT_THAT(desk.Package(),
                UnorderedElementsAre("SetupFiles\\DESTDIR\\a.txt",
                                     "SetupFiles\\DESTDIR\\Doc\\b.txt", "SetupFiles\\Data\\c.txt"));
    desk.options.PlaceCompressedFilesInFolderSetupFiles = kOff;
    Copy();
    EXPECT_TRUE(desk.Has("DESTDIR\\Doc\\b.txt"));
}

TEST_F(OneByOne, LeavesOutWhatNewWindowsHas)
{
    desk.project.OperatingSystem.TargetOperatingSystem = 1;
    desk.AddFile("msvcrt.dll");
    Copy();
    EXPECT_FALSE(desk.Has("SetupFiles\\msvcrt.dll_"));
}

TEST_F(OneByOne, KeepsTheSourcesDate)
{
    const LocalTime date{1999, 1, 2, 3, 4, 6};
    desk.machine.files.Put("C:\\Data\\a.txt", "a", date);
    Copy();
    EXPECT_EQ(desk.machine.files.Status("C:\\Ut\\SetupFiles\\a.txt_").modified, date);
}

TEST_F(OneByOne, EndsAtAFolderThatCannotBeMade)
{
    desk.machine.files.refuseFolders = true;
    Copy();
    EXPECT_THAT(desk.statusLines, ElementsAre("Skapar 'C:\\Ut\\SetupFiles'",
                                              "Kan ej skapa katalogen 'C:\\Ut\\SetupFiles'!"));
    EXPECT_TRUE(isIncomplete);
    EXPECT_FALSE(desk.CreateFailed);
}

TEST_F(OneByOne, EndsAtAFolderOfTheTreeThatCannotBeMade)
{
    desk.options.CreateFolderStructureInFolderSetupFiles = kOn;
    desk.machine.files.PutFolder("C:\\Ut\\SetupFiles\\DESTDIR");
    desk.machine.files.refuseFolders = true;
    Copy();
    EXPECT_THAT(desk.statusLines,
                ElementsAre("Katalogen 'C:\\Ut\\SetupFiles' existerar redan. Behöver ej skapa.",
                            "Kopierar 'a.txt'",
                            "Kan ej skapa katalogen 'C:\\Ut\\SetupFiles\\DESTDIR\\Doc'!"));
}

// Kept: the line names a folder, whatever failed, and Create ends as after a success.
TEST_F(OneByOne, TellsAFileThatCannotBeCopiedAsAFolder)
{
    desk.machine.files.RefuseOutput("C:\\Ut\\SetupFiles\\a.txt_", 61);
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    const std::size_t count = desk.statusLines.size();
    EXPECT_EQ(desk.statusLines[count - 2], "Kan ej skapa katalogen 'C:\\Ut\\SetupFiles'!");
    EXPECT_EQ(desk.statusLines[count - 1], "Färdig!");
    EXPECT_FALSE(desk.Has("SetupFiles\\b.txt_"));
    EXPECT_EQ(desk.failure->Path(), "C:\\Ut\\SetupFiles\\a.txt_");
}

TEST_F(OneByOne, TakesThePlaceOfTheContainerOnACompressedCdAlone)
{
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_TRUE(desk.Has("SetupFiles\\a.txt_"));
    EXPECT_FALSE(desk.Has("FILEDATA.DAT"));
    EXPECT_EQ(desk.statusLines.back(), "Färdig!");
}

TEST_F(OneByOne, OnlyClearsTheCompressionOnFloppies)
{
    desk.Choose(Medium::Floppy);
    desk.form.UseCompression = 1;
    EXPECT_EQ(desk.Create({{test::BoxKind::OkCancel, "Diskett"}}), CreateResult::Done);
    EXPECT_FALSE(desk.machine.files.DirExists("C:\\Ut\\SetupFiles"));
    EXPECT_EQ(desk.project.Compression.CompressFiles, kOff);
    const ZipReader container(desk.machine.files.OpenInput("C:\\Ut\\FILEDATA.DAT"));
    EXPECT_TRUE(container.Entries().at(0).isStored);
}

TEST_F(OneByOne, CompressesEachFileAtALevel)
{
    desk.form.UseCompression = 1;
    Copy();
    EXPECT_THAT(desk.statusLines,
                ElementsAre("Skapar 'C:\\Ut\\SetupFiles'", "Kopierar och komprimerar 'a.txt'",
                            "Kopierar och komprimerar 'b.txt'"));
    const ZipReader container(desk.machine.files.OpenInput("C:\\Ut\\SetupFiles\\a.txt_"));
    EXPECT_EQ(container.Entries().at(0).name, "data/a.txt");
}

TEST_F(OneByOne, CompressesWithoutLogAndTemporaryFolder)
{
    desk.form.UseCompression = 1;
    desk.options.CreateZipLogFile = kOn;
    desk.options.UseTempZipPath = kOn;
    desk.options.TempZipPath = "D:\\Saknas";
    desk.project.DialogBoxes.PasswordDlg = 1;
    desk.project.DialogBoxData.CorrectPassword = "Hemligt1";
    Copy();
    EXPECT_FALSE(desk.CreateFailed);
    const ZipReader container(desk.machine.files.OpenInput("C:\\Ut\\SetupFiles\\a.txt_"));
    EXPECT_FALSE(container.Entries().at(0).isEncrypted);
    EXPECT_FALSE(desk.machine.files.FileExists("C:\\WINDOWS\\DYNAZIP.LOG"));
}

TEST_F(OneByOne, GoesOnBehindAFileThatCannotBeCompressed)
{
    desk.form.UseCompression = 1;
    desk.machine.files.At("C:\\Data\\a.txt").unreadable = true;
    Copy();
    EXPECT_THAT(desk.statusLines,
                ElementsAre("Skapar 'C:\\Ut\\SetupFiles'", " Komprimering av 'a.txt' misslyckades!",
                            " DynaZip rapporterade fel #18!",
                            " Felmeddelande: Saknar läsrättigheter till fil!",
                            "Kopierar och komprimerar 'b.txt'"));
    EXPECT_TRUE(desk.CreateFailed);
    ASSERT_TRUE(desk.compressionFailure);
    EXPECT_EQ(desk.compressionFailure->Path(), "c:\\data\\a.txt");
}

} // namespace quillon
