#include "builder/row_checks.h"

#include "builder/create_checks.h"
#include "create_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

using test::BoxKind;
using test::CreateDesk;
using test::ExpectedBox;
using test::Row;
using testing::Contains;
using testing::Not;

namespace {

using Script = std::deque<ExpectedBox>;

class RowChecks : public testing::Test {
protected:
    Check Run(Check (*check)(CreateRun&), Script script = {})
    {
        return desk.With(check, std::move(script));
    }
    FileListRow& Last() { return desk.project.Files.rows.back(); }

    CreateDesk desk;
};

Script Faulty(const Text& text)
{
    return {{BoxKind::Critical, "Felaktig rad i fillistan", "Kan ej skapa! " + text}};
}

} // namespace

TEST_F(RowChecks, PassRowsThatASetupCanInstall)
{
    desk.AddFile("b.txt", "b", "%DESTDIR\\Doc\\");
    desk.AddFile("c.txt", "c", "Fast\\%PROJECTNAME");
    desk.project.Files.rows.push_back(Row("<Dir>", "%DESTDIR\\Data", ""));
    for (const auto check :
         {CheckRows, CheckUnknownVariables, CheckOneByOneNames, CheckUninstallerNames,
          CheckIconTitles, CheckDesignNames, CheckNamesInTree})
        EXPECT_EQ(Run(check), Check::Passed);
}

TEST_F(RowChecks, TellANameOrADestinationThatWindowsCannotHold)
{
    desk.AddFile("aux.txt");
    EXPECT_EQ(Run(CheckRows,
                  Faulty("Rad 2 ('aux.txt'): Namnet 'aux.txt' fungerar inte i Windows: CON, PRN, "
                         "AUX, NUL, COM1 till COM9 och LPT1 till LPT9 är reserverade namn.")),
              Check::Stopped);
    Last()[Filename] = "b.txt";
    Last()[Destination] = "%DESTDIR\\..\\..\\Windows";
    EXPECT_EQ(Run(CheckRows, Faulty("Rad 2 ('b.txt'): Destinationen '%DESTDIR\\..\\..\\Windows' "
                                    "fungerar inte i Windows: '..' får inte ingå.")),
              Check::Stopped);
    Last()[Destination] = "%DESTDR\\Data";
    EXPECT_EQ(
        Run(CheckRows, Faulty("Rad 2 ('b.txt'): Destinationen '%DESTDR\\Data' fungerar inte i "
                              "Windows: variabeln är okänd.")),
        Check::Stopped);
    Last()[Destination] = "";
    EXPECT_EQ(
        Run(CheckRows, Faulty("Rad 2 ('b.txt'): Destinationen '' fungerar inte i Windows: det "
                              "är ingen fullständig katalog.")),
        Check::Stopped);
}

TEST_F(RowChecks, TellHowManyRowsAreFaulty)
{
    const Text first = "Rad 2 ('b1'): Destinationen 'C:' fungerar inte i Windows: det är ingen "
                       "fullständig katalog.";
    desk.AddFile("b1", "x", "C:");
    desk.AddFile("b2", "x", "C:");
    EXPECT_EQ(Run(CheckRows, Faulty(first + " En rad till har fel.")), Check::Stopped);
    desk.AddFile("b3", "x", "C:");
    EXPECT_EQ(Run(CheckRows, Faulty(first + " 2 rader till har fel.")), Check::Stopped);
}

TEST_F(RowChecks, LookOnlyAtRowsThatThePackageTakes)
{
    desk.AddFile("mfc42.dll", "x", "");
    desk.project.OperatingSystem.TargetOperatingSystem = 1;
    EXPECT_EQ(Run(CheckRows), Check::Passed);
}

TEST_F(RowChecks, RefuseWhatIsLeftOfAFileThatCouldNotBeAdded)
{
    desk.project.Files.rows.push_back(Row("b.txt", "%DESTDIR", ""));
    EXPECT_EQ(
        Run(CheckRows, Faulty("Rad 2 ('b.txt'): Filen har ingen källsökväg, eftersom den inte "
                              "kunde adderas. Ta bort raden och addera filen på nytt.")),
        Check::Stopped);
}

TEST_F(RowChecks, TellAMarkedRowOnceItsFileIsThereAgain)
{
    desk.AddFile("b.txt", "b", kFileIsGone);
    EXPECT_EQ(
        Run(CheckRows,
            Faulty("Rad 2 ('b.txt'): Raden är markerad med <Filen saknas>, men filen finns. Ta "
                   "bort raden och addera filen på nytt.")),
        Check::Stopped);
    // Missing sources are reported by the file list.
    desk.machine.files.RemoveFile("C:\\Data\\b.txt");
    EXPECT_EQ(Run(CheckRows), Check::Passed);
}

TEST_F(RowChecks, RefuseASourceFolderThatNoTreeCanHold)
{
    Last()[Source] = "c:\\tmp\\..\\a?b\\a.txt";
    EXPECT_EQ(Run(CheckRows), Check::Passed);
    desk.Choose(Medium::CdTree);
    EXPECT_EQ(Run(CheckRows, Faulty("Rad 1 ('a.txt'): Källkatalogen 'a?b' fungerar inte i Windows: "
                                    "tecknen \\ / : * ? \" < > | får inte ingå i ett namn.")),
              Check::Stopped);
}

TEST_F(RowChecks, AskAboutAWordThatIsNoVariable)
{
    Last()[Destination] = "%DESTDIR\\%PROJEKT";
    const ExpectedBox box{
        BoxKind::YesNo, "Okänd variabel",
        "Rad 1 ('a.txt') har destinationen '%DESTDIR\\%PROJEKT', men '%PROJEKT' är ingen variabel. "
        "Installationsprogrammet låter ordet stå som det är. Vill du fortsätta att skapa ändå?"};
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        ExpectedBox answered = box;
        answered.answer = answer;
        EXPECT_EQ(Run(CheckUnknownVariables, {answered}),
                  answer == Answer::Yes ? Check::Passed : Check::Stopped);
        EXPECT_THAT(desk.stops, testing::ElementsAre(Ask::Stops::OnNo));
    }
}

TEST_F(RowChecks, RefuseTwoFilesOfOneNameThatAreKeptOneByOne)
{
    desk.AddFile("b.txt");
    desk.machine.files.Put("C:\\Ny\\A.txt", "other");
    desk.project.Files.rows.push_back(Row("A.txt", "%DESTDIR\\Ny", "c:\\ny\\a.txt"));
    EXPECT_EQ(Run(CheckOneByOneNames), Check::Passed) << "a container holds both";
    desk.form.KeepCompressedFilesOneAndOne = 1;
    const Script box = {
        {BoxKind::Critical, "Samma filnamn",
         "Kan ej skapa! Raderna 1 ('a.txt') från 'c:\\data\\a.txt' och 3 ('A.txt') från "
         "'c:\\ny\\a.txt' skulle skriva över varandra, eftersom filerna inte slås samman. Byt namn "
         "på den ena eller låt filerna slås samman."}};
    EXPECT_EQ(Run(CheckOneByOneNames, box), Check::Stopped);
    EXPECT_EQ(desk.Create(box), CreateResult::Stopped);
    EXPECT_THAT(desk.statusLines, Not(Contains("Färdig!")));
    EXPECT_TRUE(desk.Package().empty());

    // In the folders of their destinations they have a place each.
    desk.options.CreateFolderStructureInFolderSetupFiles = kOn;
    EXPECT_EQ(Run(CheckOneByOneNames), Check::Passed);
    Last()[Destination] = "destdir\\";
    EXPECT_EQ(Run(CheckOneByOneNames, {{BoxKind::Critical, "Samma filnamn"}}), Check::Stopped);
    desk.Choose(Medium::Floppy);
    EXPECT_EQ(Run(CheckOneByOneNames), Check::Passed);
}

TEST_F(RowChecks, LetOneFileGoToTwoPlaces)
{
    desk.form.KeepCompressedFilesOneAndOne = 1;
    desk.project.Files.rows.push_back(Row("a.txt", "%WINDIR", "C:\\DATA\\a.txt"));
    EXPECT_EQ(Run(CheckOneByOneNames), Check::Passed);
}

TEST_F(RowChecks, RefuseNamesOfTheUninstallerInTheMainFolder)
{
    for (const char* name :
         {"QNXUNIN.EXE", "qnxunin.log", "Qnxunin2.log", "qnxunin.sha256", "QNS32X.BIN"}) {
        desk.AddFile(name);
        EXPECT_EQ(Run(CheckUninstallerNames,
                      {{BoxKind::Critical, "Reserverat filnamn hittades",
                        Text("Kan ej skapa! Rad 2 ('") + name +
                            "') har ett namn som avinstallationen använder i huvudkatalogen. Byt "
                            "namn på filen eller lägg den i en annan katalog."}}),
                  Check::Stopped);
        for (const char* folder : {"%DESTDIR\\", "%COMPDIR1", "%COMPDIR2", "%PROGDIR\\Demo"}) {
            desk.project.FileComponents[1].CompDir = "%DESTDIR\\";
            Last()[Destination] = folder;
            EXPECT_EQ(
                Run(CheckUninstallerNames, {{BoxKind::Critical, "Reserverat filnamn hittades"}}),
                Check::Stopped)
                << folder;
        }
        for (const char* folder : {"%DESTDIR\\Sub", "%WINDIR", "%COMPDIR3"}) {
            desk.project.FileComponents[2].CompDir = "Hjalp";
            Last()[Destination] = folder;
            EXPECT_EQ(Run(CheckUninstallerNames), Check::Passed) << folder;
        }
        desk.project.Files.rows.pop_back();
    }
    desk.AddFile("QNXUNIN.TXT");
    EXPECT_EQ(Run(CheckUninstallerNames), Check::Passed);
}

TEST_F(RowChecks, AskAboutIconsOfOneTitle)
{
    Last()[IconMarker] = "Ikon";
    desk.AddFile("b.txt");
    Last()[IconMarker] = "IkonD";
    Last()[IconDesc] = "A.TXT";
    EXPECT_EQ(Run(CheckIconTitles,
                  {{BoxKind::YesNo, "Samma ikonnamn",
                    "Raderna 1 ('a.txt') från 'c:\\data\\a.txt' och 2 ('b.txt') från "
                    "'c:\\data\\b.txt' har ikoner med samma beskrivning. Bara den ena ikonen blir "
                    "kvar i programgruppen. Vill du fortsätta att skapa ändå?",
                    Answer::No}}),
              Check::Stopped);
    Last()[IconMarker] = "";
    EXPECT_EQ(Run(CheckIconTitles), Check::Passed);
}

TEST_F(RowChecks, AskAboutTwoObjectsOfTheScreenWithOneName)
{
    desk.project.DesBackground.PictureFilename = "C:\\A\\bild.bmp";
    desk.project.DesPictures.Pictures[1].PictureFilename = "c:\\a\\BILD.bmp";
    EXPECT_EQ(Run(CheckDesignNames), Check::Passed) << "one picture in two places";
    desk.project.DesPictures.Pictures[2].PictureFilename = "C:\\B\\Bild.bmp";
    EXPECT_EQ(Run(CheckDesignNames,
                  {{BoxKind::YesNo, "Samma filnamn",
                    "Skärmobjekten 'C:\\A\\bild.bmp' och 'C:\\B\\Bild.bmp' har samma filnamn. "
                    "Installationsprogrammet visar det ena i stället för det andra. Vill du "
                    "fortsätta att skapa ändå?",
                    Answer::No}}),
              Check::Stopped);
}

TEST_F(RowChecks, AskAboutARenamedFileOfATree)
{
    desk.project.Files.rows.push_back(Row("Nytt.txt", "%DESTDIR", "c:\\data\\a.txt"));
    EXPECT_EQ(Run(CheckNamesInTree), Check::Passed);
    desk.Choose(Medium::CdTree);
    EXPECT_EQ(
        Run(CheckNamesInTree,
            {{BoxKind::YesNo, "Filen har bytt namn",
              "Rad 2 ('Nytt.txt') har källsökvägen 'c:\\data\\a.txt'. Installationsprogrammet "
              "letar på mediet efter filen under radens namn, så filen måste läggas dit under "
              "det namnet. Vill du fortsätta att skapa ändå?"}}),
        Check::Passed);
}

TEST_F(RowChecks, ComeBehindTheOthersAndBeforeTheDestinationIsMade)
{
    desk.AddFile("aux.txt");
    desk.form.tDestinationDir = "C:\\Nytt";
    EXPECT_EQ(desk.Create({{BoxKind::Critical, "Felaktig rad i fillistan"}}),
              CreateResult::Stopped);
    EXPECT_FALSE(desk.machine.files.DirExists("C:\\Nytt"));
    EXPECT_TRUE(desk.statusLines.empty());
}

} // namespace quillon
