#include "formats/package.h"

#include "formats/package_maker.h"
#include "platform/run_error.h"
#include "support/memory_host.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Place = RowBytes::Place;

const Text kFolder = "D:\\Paket";

InstallRow Row(int number, const Text& name, std::uint64_t size, const Text& sourceFolder = "src")
{
    InstallRow row;
    row.number = number;
    row.name = name;
    row.destination = "%DESTDIR\\Data";
    row.size = size;
    row.sourceFolder = sourceFolder;
    return row;
}

InstallRow FolderRow(int number)
{
    return Row(number, "<Dir>", 0, "");
}

class PackageFolder : public testing::Test {
protected:
    PackageFolder()
    {
        for (const char* name : {"SETUP.EXE", "QNS32X.BIN", "DUNZIP32.DLL", "SWEDISH.LNG"})
            PutFile(name, name);
    }
    void PutFile(const Text& name, std::string bytes)
    {
        files.Put(kFolder + "\\" + name, std::move(bytes));
    }
    void PutLists(const std::vector<InstallRow>& rows, SetupLines lines = {})
    {
        if (lines.files == 0)
            lines.files = static_cast<int>(rows.size());
        PutFile("QNSETUP.INF", MakeSetupInformation(lines));
        PutFile("FILELIST.INF", MakeInstallFileList(rows));
    }
    Package Open() { return OpenPackage(files, kFolder); }
    std::vector<Text> Verify()
    {
        Package package = Open();
        return VerifyPackage(files, package);
    }
    std::string Extracted(Package& package, std::size_t row)
    {
        std::string bytes;
        ExtractRow(files, package, row, [&](std::span<const std::byte> piece) {
            bytes.append(reinterpret_cast<const char*>(piece.data()), piece.size());
        });
        return bytes;
    }

    MemoryFiles files;
};

using CompressedPackage = PackageFolder;
using OneByOnePackage = PackageFolder;
using TreePackage = PackageFolder;
using FloppyPackage = PackageFolder;

} // namespace

TEST(RowNumbers, AreTheNumbersOfTheCommentsKeys)
{
    const std::pair<const char*, std::vector<int>> cases[] = {{"", {}},
                                                              {"F1", {1}},
                                                              {"F1 F7", {1, 7}},
                                                              {"F32767", {32767}},
                                                              {"F", {0}},
                                                              {"1", {0}},
                                                              {"F1x F2", {0, 2}},
                                                              {"f1", {0}},
                                                              {"F1  F2 ", {1, 0, 2}},
                                                              {"a comment", {0, 0}},
                                                              {"F99999999999999", {0}}};
    for (const auto& [comment, numbers] : cases)
        EXPECT_EQ(RowNumbers(comment), numbers) << comment;
}

TEST_F(CompressedPackage, GivesARowTheDateThatTheCommentHasForIt)
{
    PutLists({Row(1, "a.txt", 3), Row(2, "b.txt", 3)});
    PutFile("FILEDATA.DAT", MakeArchive({{"src/a.txt", "F1 F2@20040229123058", "abc"}}));
    const Package package = Open();
    EXPECT_THAT(package.faults, IsEmpty());
    EXPECT_EQ(package.bytes[0].modified, std::nullopt);
    EXPECT_EQ(package.bytes[1].modified, (LocalTime{2004, 2, 29, 12, 30, 58}));
    EXPECT_EQ(package.bytes[1].entry, 0U);
}

TEST_F(CompressedPackage, FindsEntriesByTheRowsThatTheirCommentsName)
{
    PutLists({Row(1, "a.txt", 3), FolderRow(2), Row(3, "renamed.txt", 5), Row(4, "twin.txt", 3)});
    PutFile("FILEDATA.DAT",
            MakeArchive({{"src/b.txt", "F3", "Hello"}, {"src/a.txt", "F1 F4", "abc"}}));

    Package package = Open();
    ASSERT_EQ(package.bytes.size(), 4U);
    EXPECT_EQ(package.bytes[0], (RowBytes{Place::Container, 1, ""}));
    EXPECT_EQ(package.bytes[1], (RowBytes{Place::None, 0, ""}));
    EXPECT_EQ(package.bytes[2], (RowBytes{Place::Container, 0, ""}));
    EXPECT_EQ(package.bytes[3], (RowBytes{Place::Container, 1, ""}));
    EXPECT_EQ(Extracted(package, 0), "abc");
    EXPECT_EQ(Extracted(package, 1), "");
    EXPECT_EQ(Extracted(package, 2), "Hello");
    EXPECT_EQ(Extracted(package, 3), "abc");
    EXPECT_THAT(VerifyPackage(files, package), IsEmpty());
}

TEST_F(CompressedPackage, OpensWithThePasswordOfItsSetupInformation)
{
    SetupLines lines;
    lines.more = "[DialogBoxData]\r\nCorrectPassword = Hemligt\r\n\r\n";
    PutLists({Row(1, "a.txt", 3)}, lines);
    PutFile("FILEDATA.DAT", MakeArchive({{"a.txt", "F1", "abc", "Hemligt"}}));
    Package package = Open();
    ASSERT_EQ(package.setup.project.DialogBoxData.CorrectPassword, "Hemligt");
    EXPECT_EQ(Extracted(package, 0), "abc");
    EXPECT_THAT(Verify(), IsEmpty());

    PutFile("FILEDATA.DAT", MakeArchive({{"a.txt", "F1", "abc", "Annat"}}));
    EXPECT_THAT(Verify(),
                ElementsAre("FILEDATA.DAT: posten 'a.txt' (F1): lösenordet stämmer inte."));
}

TEST_F(CompressedPackage, NeedsNoContainerForFoldersAlone)
{
    PutLists({FolderRow(1)});
    EXPECT_THAT(Verify(), IsEmpty());
    PutLists({});
    EXPECT_THAT(Verify(), IsEmpty());
}

TEST_F(CompressedPackage, LetsARowWithoutSourceStandAlone)
{
    PutLists({Row(1, "without source", 0, ""), Row(2, "a.txt", 3)});
    PutFile("FILEDATA.DAT", MakeArchive({{"a.txt", "F2", "abc"}}));
    EXPECT_EQ(Open().bytes[0].place, Place::None);
    EXPECT_THAT(Verify(), IsEmpty());
}

TEST_F(CompressedPackage, TellsAMissingContainerOnceAndNotForEachRow)
{
    PutLists({Row(1, "a.txt", 3), Row(2, "b.txt", 3)});
    EXPECT_THAT(Verify(), ElementsAre("FILEDATA.DAT saknas: 'D:\\Paket\\FILEDATA.DAT'."));
    Package package = Open();
    EXPECT_EQ(RunErrorNumber([&] { Extracted(package, 0); }), ErrorNumber::kFileNotFound);
}

TEST_F(CompressedPackage, TellsADamagedContainer)
{
    PutLists({Row(1, "a.txt", 3)});
    PutFile("FILEDATA.DAT", "no archive at all");
    EXPECT_THAT(Verify(), ElementsAre("FILEDATA.DAT är skadad: filen är inget ZIP-arkiv."));
}

TEST_F(CompressedPackage, TellsAContainerThatCannotBeRead)
{
    PutLists({Row(1, "a.txt", 3)});
    PutFile("FILEDATA.DAT", "x");
    files.At(kFolder + "\\FILEDATA.DAT").unreadable = true;
    EXPECT_THAT(Verify(), ElementsAre("FILEDATA.DAT kan ej läsas: Fel #70."));
}

TEST_F(CompressedPackage, TellsRowsWithoutBytesWrongSizesAndWrongChecksums)
{
    PutLists({Row(1, "a.txt", 4), Row(2, "b.txt", 2), Row(3, "c.txt", 1)});
    PutFile("FILEDATA.DAT", MakeArchive({{"a.txt", "F1", "abc"}, {"c.txt", "F3", "c", "", true}}));
    EXPECT_THAT(
        Verify(),
        ElementsAre("F1 'a.txt': storleken är 3 byte i paketet men 4 byte i FILELIST.INF.",
                    "F2 'b.txt': filen saknas i paketet.",
                    "FILEDATA.DAT: posten 'c.txt' (F3): innehållet är skadat (kontrollsumman "
                    "(CRC) stämmer inte)."));
}

TEST_F(CompressedPackage, TellsEntriesThatServeNoRowAndRowsServedTwice)
{
    PutLists({Row(1, "a.txt", 1)});
    PutFile("FILEDATA.DAT", MakeArchive({{"a", "F1", "a"},
                                         {"b", "F2", "b"},
                                         {"c", "", "c"},
                                         {"d", "F1x", "d"},
                                         {"e", "F1", "e"}}));
    EXPECT_THAT(Verify(),
                ElementsAre("FILEDATA.DAT: posten 'b' hör inte till någon rad i FILELIST.INF.",
                            "FILEDATA.DAT: posten 'c' hör inte till någon rad i FILELIST.INF.",
                            "FILEDATA.DAT: posten 'd' hör inte till någon rad i FILELIST.INF.",
                            "FILEDATA.DAT har fler än en post för F1."));
}

TEST_F(CompressedPackage, TellsInfFilesThatAreMissingUnreadableOrNotWhole)
{
    files.PutFolder(kFolder);
    EXPECT_THAT(Verify(), ElementsAre("QNSETUP.INF saknas.", "FILELIST.INF saknas."));

    const Text damagedSetup =
        "QNSETUP.INF är skadad: typen, en listas slut eller filens slut saknas.";
    const Text damagedList =
        "FILELIST.INF är skadad: typen, listans slut eller filens slut saknas, "
        "eller en rad är felaktig.";
    PutFile("QNSETUP.INF", "");
    PutFile("FILELIST.INF", "");
    EXPECT_THAT(Verify(), ElementsAre(damagedSetup, damagedList));

    PutLists({});
    std::string& setup = *files.At(kFolder + "\\QNSETUP.INF").bytes;
    setup.resize(setup.size() - 11);
    EXPECT_THAT(Verify(), ElementsAre(damagedSetup));

    PutLists({});
    files.At(kFolder + "\\FILELIST.INF").unreadable = true;
    EXPECT_THAT(Verify(), ElementsAre("FILELIST.INF kan ej läsas: Fel #70."));
}

TEST_F(CompressedPackage, TellsACountThatDisagrees)
{
    PutLists({FolderRow(1)}, {.files = 2});
    EXPECT_THAT(Verify(), ElementsAre("QNSETUP.INF anger 2 filer men FILELIST.INF har 1 rader."));
}

TEST_F(CompressedPackage, TellsRowsThatTheSetupRefuses)
{
    InstallRow climbing = FolderRow(1);
    climbing.destination = "%DESTDIR\\..\\..\\Windows";
    InstallRow streams = FolderRow(2);
    streams.destination = "%DESTDIR\\a.txt:dold";
    InstallRow unknown = FolderRow(3);
    unknown.destination = "%DESTDR";
    PutLists({climbing, streams, unknown, Row(4, "aux.txt", 3)});
    PutFile("FILEDATA.DAT", MakeArchive({{"src/aux.txt", "F4", "abc"}}));
    EXPECT_THAT(
        Verify(),
        ElementsAre(
            "F1: Destinationen '%DESTDIR\\..\\..\\Windows' fungerar inte i Windows: '..' "
            "får inte ingå.",
            "F2: Destinationen '%DESTDIR\\a.txt:dold' fungerar inte i Windows: ett kolon får "
            "bara stå efter enhetens bokstav.",
            "F3: Destinationen '%DESTDR' fungerar inte i Windows: variabeln är okänd.",
            "F4: Namnet 'aux.txt' fungerar inte i Windows: CON, PRN, AUX, NUL, COM1 till "
            "COM9 och LPT1 till LPT9 är reserverade namn."));
}

TEST_F(TreePackage, TellsAFolderOutsideTheMedium)
{
    PutLists({Row(1, "a.txt", 3, "..\\hemligt")}, {.targetMedia = 3});
    EXPECT_THAT(Verify(), testing::Contains("F1: Källkatalogen '..\\hemligt' fungerar inte i "
                                            "Windows: '..' får inte ingå."));
    PutLists({Row(1, "a.txt", 3, "..\\hemligt")});
    PutFile("FILEDATA.DAT", MakeArchive({{"hemligt/a.txt", "F1", "abc"}}));
    EXPECT_THAT(Verify(), IsEmpty()) << "a container does not go by it";
}

TEST_F(CompressedPackage, ReadsTheDesignContainerWhereThereIsOne)
{
    PutLists({});
    PutFile("DESOBJ.DAT", MakeArchive({{"bild.bmp", "", "x"}}));
    EXPECT_THAT(Verify(), IsEmpty());
    PutFile("DESOBJ.DAT", MakeArchive({{"bild.bmp", "", "x", "", true}}));
    EXPECT_THAT(Verify(), ElementsAre("DESOBJ.DAT: posten 'bild.bmp': innehållet är skadat "
                                      "(kontrollsumman (CRC) stämmer inte)."));
    PutFile("DESOBJ.DAT", "");
    EXPECT_THAT(Verify(),
                ElementsAre("DESOBJ.DAT: innehållet är skadat (filen är inget ZIP-arkiv)."));
}

// A package with a manifest over all that it holds.
class ListedPackage : public PackageFolder {
protected:
    ListedPackage()
    {
        PutLists({Row(1, "a.txt", 3)});
        PutFile("FILEDATA.DAT", MakeArchive({{"src/a.txt", "F1", "abc"}}));
        PutManifest({"SETUP.EXE", "QNS32X.BIN", "DUNZIP32.DLL", "SWEDISH.LNG", "QNSETUP.INF",
                     "FILELIST.INF", "FILEDATA.DAT"});
    }
    void PutManifest(const std::vector<Text>& names)
    {
        std::vector<ManifestLine> lines;
        for (const Text& name : names)
            lines.push_back({name, DigestOfFile(files, kFolder + "\\" + name)});
        WritePackageManifest(files, kFolder, lines);
    }
};

TEST_F(ListedPackage, IsWhole)
{
    EXPECT_THAT(Verify(), IsEmpty());
}

TEST_F(ListedPackage, MayHoldFilesThatTheUserHasAdded)
{
    PutFile("LÄS MIG.TXT", "by hand");
    EXPECT_THAT(Verify(), IsEmpty());
}

TEST_F(ListedPackage, TellsEachFileThatIsMissingOrCut)
{
    for (const Text name : {"SETUP.EXE", "QNS32X.BIN", "DUNZIP32.DLL", "SWEDISH.LNG"}) {
        std::string& bytes = *files.At(kFolder + "\\" + name).bytes;
        const std::string whole = bytes;
        bytes.pop_back();
        EXPECT_THAT(Verify(), ElementsAre("'" + name +
                                          "' är inte längre som när paketet skapades "
                                          "(PACKAGE.SHA256)."));
        files.RemoveFile(kFolder + "\\" + name);
        EXPECT_THAT(Verify(), ElementsAre(name + " saknas."));
        PutFile(name, whole);
    }
}

TEST_F(ListedPackage, TellsAFileThatOnlyTheManifestKnows)
{
    PutFile("LICENSE.RTF", "{\\rtf1}");
    PutManifest({"SETUP.EXE", "QNS32X.BIN", "DUNZIP32.DLL", "SWEDISH.LNG", "QNSETUP.INF",
                 "FILELIST.INF", "FILEDATA.DAT", "LICENSE.RTF"});
    EXPECT_THAT(Verify(), IsEmpty());
    files.At(kFolder + "\\LICENSE.RTF").unreadable = true;
    EXPECT_THAT(Verify(), ElementsAre("'LICENSE.RTF' kan ej läsas."));
    files.RemoveFile(kFolder + "\\LICENSE.RTF");
    EXPECT_THAT(Verify(), ElementsAre("'LICENSE.RTF' saknas men står i PACKAGE.SHA256."));
}

TEST_F(ListedPackage, TellsAManifestThatHasLostLines)
{
    PutManifest({"SETUP.EXE", "QNS32X.BIN", "SWEDISH.LNG", "QNSETUP.INF", "FILELIST.INF"});
    EXPECT_THAT(Verify(), ElementsAre("'DUNZIP32.DLL' står inte i PACKAGE.SHA256.",
                                      "'FILEDATA.DAT' står inte i PACKAGE.SHA256."));
}

TEST_F(ListedPackage, TellsOneThatIsEmptyOrDamaged)
{
    PutFile("PACKAGE.SHA256", "");
    EXPECT_THAT(Verify(), ElementsAre("PACKAGE.SHA256 är tom: paketet blev inte färdigt."));
    PutFile("PACKAGE.SHA256", "x");
    EXPECT_THAT(Verify(), ElementsAre("PACKAGE.SHA256 är skadad."));
}

TEST_F(CompressedPackage, WithoutAManifestMustHoldTheRuntimeAllTheSame)
{
    PutLists({FolderRow(1)}, {.more = "[InstallOptions]\r\nSetupName = START.EXE\r\n"
                                      "UninstallSupport = 1\r\n\r\n[Language]\r\n"
                                      "LanguageFile = DANISH.LNG\r\n\r\n"});
    files.RemoveFile(kFolder + "\\QNS32X.BIN");
    EXPECT_THAT(Verify(), ElementsAre("START.EXE saknas.", "QNS32X.BIN saknas.",
                                      "DANISH.LNG saknas.", "QNXUNIN.BIN saknas."));
}

TEST_F(OneByOnePackage, FindsFilesUnderTheirNamesWithAnUnderscore)
{
    PutLists({Row(1, "a.txt", 3), FolderRow(2)}, {.keepOneAndOne = "1"});
    PutFile("SetupFiles\\a.txt_", "abc");
    Package package = Open();
    EXPECT_EQ(package.bytes[0], (RowBytes{Place::LooseFile, 0, kFolder + "\\SetupFiles\\a.txt_"}));
    EXPECT_EQ(Extracted(package, 0), "abc");
    EXPECT_THAT(VerifyPackage(files, package), IsEmpty());
}

TEST_F(OneByOnePackage, FindsFilesInThePackageFolderItself)
{
    PutLists({Row(1, "a.txt", 3)}, {.keepOneAndOne = "1", .inSetupFiles = "0"});
    PutFile("a.txt_", "abc");
    EXPECT_THAT(Verify(), IsEmpty());
}

TEST_F(OneByOnePackage, FindsFilesInTheFoldersOfTheirDestinations)
{
    InstallRow elsewhere = Row(2, "b.txt", 1);
    elsewhere.destination = "Fast\\";
    for (const auto& [inSetupFiles, base] : {std::pair("1", "SetupFiles\\"), std::pair("0", "")}) {
        PutLists({Row(1, "a.txt", 3), elsewhere},
                 {.keepOneAndOne = "1", .inSetupFiles = inSetupFiles, .withFolders = "1"});
        PutFile(Text(base) + "DESTDIR\\Data\\a.txt", "abc");
        PutFile(Text(base) + "Fast\\b.txt", "b");
        EXPECT_THAT(Verify(), IsEmpty()) << base;
    }
}

TEST_F(OneByOnePackage, TellsFilesThatAreMissingUnreadableOrOfAnotherSize)
{
    PutLists({Row(1, "a.txt", 3), Row(2, "b.txt", 3), Row(3, "c.txt", 3)}, {.keepOneAndOne = "1"});
    PutFile("SetupFiles\\b.txt_", "ab");
    PutFile("SetupFiles\\c.txt_", "abc");
    files.At(kFolder + "\\SetupFiles\\c.txt_").unreadable = true;
    EXPECT_THAT(Verify(),
                ElementsAre("F1 'a.txt': filen saknas i paketet: 'D:\\Paket\\SetupFiles\\a.txt_'.",
                            "F2 'b.txt': storleken är 2 byte i paketet men 3 byte i FILELIST.INF.",
                            "F3 'c.txt': kan ej läsas (Fel #70)."));
}

TEST_F(OneByOnePackage, IsACompressedCdOnly)
{
    PutLists({Row(1, "a.txt", 3)}, {.targetMedia = 4, .keepOneAndOne = "1"});
    PutFile("FILEDATA.DAT", MakeArchive({{"a.txt", "F1", "abc"}}));
    EXPECT_THAT(Verify(), IsEmpty());
}

TEST_F(TreePackage, FindsFilesInTheFoldersOfTheirSources)
{
    PutLists({Row(1, "a.txt", 3, "data\\app"), Row(2, "b.txt", 1, ""), FolderRow(3)},
             {.targetMedia = 3});
    PutFile("Data\\App\\A.TXT", "abc");
    EXPECT_THAT(Verify(), ElementsAre("F2 'b.txt': filen saknas i paketet: 'D:\\Paket\\b.txt'."));
    PutFile("b.txt", "b");
    EXPECT_THAT(Verify(), IsEmpty());
}

TEST_F(FloppyPackage, JoinsThePiecesOfItsDisks)
{
    PutLists({Row(1, "a.txt", 3)}, {.targetMedia = 1, .floppies = "Floppies=3\r\n"});
    const std::string archive = MakeArchive({{"a.txt", "F1", "abc"}});
    PutFile("FILEDATA.DAT", archive.substr(0, 10));
    PutFile("disk2\\FILEDATA.DAT", archive.substr(10, 50));
    PutFile("disk3\\FILEDATA.DAT", archive.substr(60));
    EXPECT_THAT(Verify(), IsEmpty());

    files.RemoveFile(kFolder + "\\disk2\\FILEDATA.DAT");
    EXPECT_THAT(Verify(), ElementsAre("FILEDATA.DAT på diskett 2 saknas: "
                                      "'D:\\Paket\\disk2\\FILEDATA.DAT'."));
}

TEST_F(FloppyPackage, OfOneDiskIsOnePiece)
{
    for (const char* const floppies : {"Floppies=1\r\n", "Floppies = xxxx\r\n"}) {
        PutLists({Row(1, "a.txt", 3)}, {.targetMedia = 1, .floppies = floppies});
        PutFile("FILEDATA.DAT", MakeArchive({{"a.txt", "F1", "abc"}}));
        EXPECT_THAT(Verify(), IsEmpty()) << floppies;
    }
}

} // namespace quillon::test
