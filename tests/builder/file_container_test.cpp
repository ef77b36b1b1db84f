#include "builder/file_container.h"

#include "archive/solid/package_container.h"
#include "create_desk.h"
#include "formats/setup_information.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

using test::CreateDesk;
using testing::ElementsAre;
using testing::Pair;

namespace {

class FileContainer : public testing::Test {
protected:
    FileContainer() { desk.project.Files.rows.clear(); }

    void Make(bool spanning = false)
    {
        desk.With([&](CreateRun& run) {
            CreateFileContainer(run, spanning);
            return true;
        });
    }
    std::vector<ZipEntry> Entries() const
    {
        return OpenAnyContainer(desk.machine.files.OpenInput("C:\\Ut\\FILEDATA.DAT"))->Entries();
    }
    std::vector<std::pair<Text, Text>> NamesAndRows() const
    {
        std::vector<std::pair<Text, Text>> pairs;
        for (const ZipEntry& entry : Entries())
            pairs.emplace_back(entry.name, entry.comment);
        return pairs;
    }
    void AddFolderRow()
    {
        desk.project.Files.rows.emplace_back();
        desk.project.Files.rows.back()[Filename] = kEmptyFolderName;
    }

    CreateDesk desk;
};

} // namespace

TEST_F(FileContainer, IsSolidAndInTheOrderOfKindsWhereItIsToBeSmall)
{
    desk.form.SmallContainer = 1;
    desk.AddFile("b.txt", "text");
    desk.AddFile("a.txt", "other text");
    desk.AddFile("c.dll", "library");
    desk.AddFile("d.txt", "text");
    Make();
    EXPECT_FALSE(desk.CreateFailed);
    EXPECT_THAT(NamesAndRows(), ElementsAre(Pair("data/c.dll", "F3"), Pair("data/a.txt", "F2"),
                                            Pair("data/b.txt", "F1 F4")));
    for (const ZipEntry& entry : Entries())
        EXPECT_TRUE(entry.isSolid);
    EXPECT_EQ(desk.statusLines.back(), "Antal filer som adderats till FILEDATA.DTA: 0 st");
}

TEST_F(FileContainer, IsAZipFileOnEveryOtherMediumWhateverTheProjectSays)
{
    desk.form.SmallContainer = 1;
    desk.form.TargetMedia = Medium::Internet;
    desk.AddFile("b.txt");
    Make();
    EXPECT_FALSE(Entries()[0].isSolid);
}

TEST_F(FileContainer, TellsASolidOneThatFails)
{
    desk.form.SmallContainer = 1;
    desk.machine.files.At(desk.AddFile("b.txt")[Source]).unreadable = true;
    Make();
    EXPECT_TRUE(desk.CreateFailed);
    EXPECT_THAT(
        desk.statusLines,
        testing::Contains(" Felmeddelande: Saknar läsrättigheter till en eller flera filer!"));
    EXPECT_FALSE(desk.Has("FILEDATA.DAT"));
}

TEST_F(FileContainer, NamesTheRowsThatEachEntryServes)
{
    desk.AddFile("A.txt");
    AddFolderRow();
    desk.AddFile("Mapp\\B.txt", "other bytes")[Filename] = "annat.txt";
    desk.project.Files.rows.push_back(desk.project.Files.rows[0]);
    Make();
    EXPECT_THAT(NamesAndRows(),
                ElementsAre(Pair("data/a.txt", "F1 F4"), Pair("data/mapp/b.txt", "F3")));
    EXPECT_FALSE(desk.CreateFailed);
}

TEST_F(FileContainer, CountsSkippedRowsAsTheFileListDoes)
{
    desk.project.OperatingSystem.TargetOperatingSystem = 1;
    desk.AddFile("MSVCRT.DLL");
    desk.AddFile("a.txt");
    Make();
    EXPECT_THAT(NamesAndRows(), ElementsAre(Pair("data/a.txt", "F1")));
}

TEST_F(FileContainer, StoresWithoutCompression)
{
    desk.AddFile("a.txt", std::string(10'000, 'x'));
    Make();
    EXPECT_FALSE(Entries().at(0).isStored);
    desk.form.UseCompression = 0;
    Make();
    EXPECT_TRUE(Entries().at(0).isStored);
}

TEST_F(FileContainer, IsEncryptedWhenTheSetupAsksForAPassword)
{
    desk.AddFile("a.txt");
    const auto isEncrypted = [&](Integer page, const Text& password) {
        desk.project.DialogBoxes.PasswordDlg = page;
        desk.project.DialogBoxData.CorrectPassword = password;
        Make();
        return Entries().at(0).isEncrypted;
    };
    EXPECT_TRUE(isEncrypted(1, "Hemligt1"));
    EXPECT_FALSE(isEncrypted(1, ""));
    EXPECT_FALSE(isEncrypted(0, "Hemligt1"));
}

TEST_F(FileContainer, TakesThePasswordInPlain)
{
    desk.AddFile("a.txt", "secret bytes");
    desk.project.DialogBoxes.PasswordDlg = 1;
    desk.project.DialogBoxData.CorrectPassword = "Hemligt1";
    Make();
    ZipReader container(desk.machine.files.OpenInput("C:\\Ut\\FILEDATA.DAT"));
    std::string bytes;
    container.Extract(container.Entries().at(0), "Hemligt1", [&](std::span<const std::byte> piece) {
        bytes.append(reinterpret_cast<const char*>(piece.data()), piece.size());
    });
    EXPECT_EQ(bytes, "secret bytes");
}

TEST_F(FileContainer, TellsAnEmptyListLikeAnyOtherFailure)
{
    AddFolderRow();
    Make();
    EXPECT_THAT(desk.statusLines,
                ElementsAre("Öppnar FILEDATA.DAT", "Kopierar och komprimerar filer",
                            " Komprimering av filer misslyckades!",
                            " DynaZip rapporterade fel #12!", " Kan ej skapa FILEDATA.DAT"));
    EXPECT_TRUE(desk.CreateFailed);
}

TEST_F(FileContainer, HasWordsForAMissingReadRight)
{
    desk.AddFile("a.txt");
    desk.machine.files.At("C:\\Data\\a.txt").unreadable = true;
    desk.machine.files.Put("C:\\Ut\\FILEDATA.DAT", "of an earlier run");
    Make();
    EXPECT_THAT(
        desk.statusLines,
        ElementsAre("Öppnar FILEDATA.DAT", "Adderar 'a.txt'", "Kopierar och komprimerar filer",
                    " Komprimering av filer misslyckades!", " DynaZip rapporterade fel #18!",
                    " Felmeddelande: Saknar läsrättigheter till en eller flera filer!",
                    " Kan ej skapa FILEDATA.DAT"));
    EXPECT_TRUE(desk.CreateFailed);
    ASSERT_TRUE(desk.compressionFailure);
    EXPECT_EQ(desk.compressionFailure->Path(), "c:\\data\\a.txt");
    EXPECT_FALSE(desk.Has("FILEDATA.DAT"));
}

TEST_F(FileContainer, TellsAFullDestinationByNumber)
{
    desk.AddFile("a.txt");
    desk.machine.files.RefuseOutput("C:\\Ut\\FILEDATA.DAT", 75);
    desk.machine.files.FailFromWrite(1, 61);
    Make();
    EXPECT_EQ(desk.statusLines[4], " DynaZip rapporterade fel #15!");
    EXPECT_EQ(desk.statusLines.back(), " Kan ej skapa FILEDATA.DAT");
}

TEST_F(FileContainer, GrowsInTheToolsOwnTemporaryFolderWhereTheOptionSaysSo)
{
    desk.AddFile("a.txt");
    desk.options.TempZipPath = "D:\\Saknas";
    Make();
    EXPECT_FALSE(desk.CreateFailed);
    desk.options.UseTempZipPath = kOn;
    Make();
    EXPECT_EQ(desk.statusLines[4], " DynaZip rapporterade fel #16!");
}

TEST_F(FileContainer, EndsAtAFileThatTheListDoesNotTake)
{
    desk.AddFile("a.txt");
    desk.AddFile("b.txt")[Source] = "c:\\";
    desk.AddFile("c.txt");
    Make();
    EXPECT_THAT(desk.statusLines,
                ElementsAre("Öppnar FILEDATA.DAT", "Adderar 'a.txt'",
                            "Fel inträffade! Kan ej addera filen b.txt till filtabell!"));
    EXPECT_TRUE(desk.CreateFailed);
    EXPECT_FALSE(desk.Has("FILEDATA.DAT"));
}

TEST_F(FileContainer, FindsTheBytesOfASourceWithDots)
{
    desk.AddFile("a.txt", "right")[Source] = "c:\\tmp\\..\\data\\.\\a.txt";
    Make();
    EXPECT_THAT(NamesAndRows(), ElementsAre(Pair("data/a.txt", "F1")));
    EXPECT_EQ(Entries().at(0).size, 5u);
}

class SpannedContainer : public FileContainer {
protected:
    SpannedContainer()
    {
        desk.machine.files.Put("C:\\Ut\\QNSETUP.INF",
                               "[Media]\r\nTargetMedia = 1\r\nFloppies = xxxx\r\n\r\n-(EOF)-\r\n");
        desk.AddFile("a.txt", std::string(2500, 'x'));
        desk.form.UseCompression = 0;
        desk.disks.capacity = 1000;
    }
};

TEST_F(SpannedContainer, TellsTheCountInTheSetupInformation)
{
    Make(true);
    EXPECT_THAT(desk.statusLines,
                ElementsAre("Öppnar FILEDATA.DAT", "Adderar 'a.txt'",
                            "Kopierar och komprimerar filer", "Stänger FILEDATA.DAT",
                            "Antal filer som adderats till FILEDATA.DTA: 0 st",
                            "Uppdaterar QNSETUP.INF med diskettinformation"));
    EXPECT_EQ(desk.FloppiesUsed, 3);
    EXPECT_EQ(desk.Get("QNSETUP.INF"),
              "[Media]\r\nTargetMedia = 1\r\nFloppies=3\r\n\r\n-(EOF)-\r\n");
    EXPECT_TRUE(desk.machine.files.FileExists("C:\\disk3\\FILEDATA.DAT"));
}

TEST_F(SpannedContainer, TellsTheCountAlsoAfterAFailure)
{
    desk.disks.lastDisk = 2;
    Make(true);
    EXPECT_TRUE(desk.CreateFailed);
    EXPECT_EQ(desk.statusLines[4], " DynaZip rapporterade fel #14!");
    EXPECT_EQ(desk.statusLines.back(), "Uppdaterar QNSETUP.INF med diskettinformation");
    const Text count = "Floppies=" + NumberText(desk.FloppiesUsed) + "\r\n";
    EXPECT_NE(desk.Get("QNSETUP.INF").find(count), Text::npos);
}

} // namespace quillon
