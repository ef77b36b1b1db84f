// The Internet medium from Create to the finished program, in memory.
#include "builder/selfextract/self_extracting_file.h"

#include "archive/solid/solid_unpack.h"
#include "builder/selfextract/program_resources.h"
#include "builder/selfextract/self_extract_project.h"
#include "create_desk.h"
#include "formats/package.h"
#include "formats/self_extraction.h"
#include "helpers/utf16.h"
#include "helpers/version_resource.h"
#include "support/linked_program.h"
#include "support/one_file_host.h"
#include "support/plain_icon.h"

#include <cstring>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

using test::BoxKind;
using test::CreateDesk;
using test::ExpectedBox;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;

namespace {

class SelfExtractingFile : public testing::Test {
protected:
    SelfExtractingFile()
    {
        desk.Choose(Medium::Internet);
        desk.AddFile("prog.exe", test::MakeLinkedProgram({}) + std::string(3000, '\x90'));
        desk.AddFile("b.txt", std::string(5000, 'x'));
        desk.project.Version.CompanyName = "Firma AB";
        desk.project.Version.ProductName = "Båtar & sjö";
        desk.project.Version.ProductVersion = "2.10";
    }

    SolidReader Payload() const
    {
        return SolidReader(desk.machine.files.OpenInput("C:\\Ut\\self.exe"));
    }

    FileVersionData Version() const
    {
        const auto file = desk.machine.files.OpenInput("C:\\Ut\\self.exe");
        return GetFileVersionData([&](std::uint64_t position, std::span<std::byte> buffer) {
            file->Seek(position);
            return file->Read(buffer);
        });
    }

    // The whole file that describes the program; a failure leaves it.
    std::string Described(const std::string& languageFile)
    {
        desk.machine.files.nodes.erase("c:\\quillon\\release\\qnselfx.exe");
        desk.machine.files.Put("C:\\Ut\\SWEDISH.LNG", languageFile);
        EXPECT_FALSE(desk.With([](CreateRun& run) { return BuildSelfExtractingFile(run); }));
        return desk.Get("INSTALL.ADX");
    }

    CreateDesk desk;
};

TEST_F(SelfExtractingFile, IsAllThatIsLeft)
{
    desk.project.RunAppSelfX.ProgramFilename = "C:\\Data\\starta.exe";
    desk.machine.files.Put("C:\\Data\\starta.exe", "start");
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_THAT(
        desk.statusLines,
        ElementsAre("** Skapar 32 bitars installationsuppsättning för Internet **",
                    "Kopierar SETUP.EXE", "Kopierar QNS32X.EXE  (Small Version)",
                    "Kopierar DUNZIP32.DLL", "Skapar FILELIST.INF", "Skapar QNSETUP.INF",
                    "Kopierar SWEDISH.LNG", "Öppnar DESOBJ.DAT", "Kopierar och komprimerar filer",
                    "Stänger DESOBJ.DAT", "Inga skärmobjekt kopierade - raderar DESOBJ.DAT",
                    "Öppnar FILEDATA.DAT", "Adderar 'a.txt'", "Adderar 'prog.exe'",
                    "Adderar 'b.txt'", "Kopierar och komprimerar filer", "Skriver filtabell",
                    "Stänger FILEDATA.DAT", "Antal filer som adderats till FILEDATA.DTA: 3 st",
                    "Kopierar STARTA.EXE", "Skapar SELF.EXE (självuppackande installationsprogram)",
                    "Raderar temporära filer", "Färdig!"));
    EXPECT_EQ(desk.beeps, 1);
    EXPECT_TRUE(desk.form.isCmdCreateEnabled);
    EXPECT_THAT(desk.Package(), ElementsAre("self.exe"));
}

TEST_F(SelfExtractingFile, CarriesAWholePackage)
{
    desk.project.RunAppSelfX.ProgramFilename = "C:\\Data\\starta.exe";
    desk.machine.files.Put("C:\\Data\\starta.exe", "start");
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    desk.machine.files.PutFolder("C:\\Upp");
    FolderSink sink(desk.machine.files, "C:\\Upp");
    Payload().Extract(sink);
    Package package = OpenPackage(desk.machine.files, "C:\\Upp");
    EXPECT_THAT(VerifyPackage(desk.machine.files, package), ElementsAre());
    EXPECT_EQ(package.rows.size(), 3U);
    EXPECT_TRUE(package.manifest.Names("starta.exe"));
    EXPECT_EQ(desk.machine.files.Get("C:\\Upp\\starta.exe"), "start");
    ASSERT_NE(package.container, nullptr);
    // Stored, in the order that packs best.
    std::vector<Text> names;
    for (const ZipEntry& entry : package.container->Entries()) {
        EXPECT_TRUE(entry.isStored) << entry.name;
        names.push_back(entry.name);
    }
    EXPECT_THAT(names, ElementsAre("data/prog.exe", "data/a.txt", "data/b.txt"));
}

// The user has agreed that the folder is not empty; that is no leave to remove a source.
TEST_F(SelfExtractingFile, LeavesTheFirstProgramWhereItLiesInTheFolderItself)
{
    desk.project.RunAppSelfX.ProgramFilename = "c:\\ut\\.\\starta.exe";
    desk.machine.files.Put("C:\\Ut\\starta.exe", "start");
    ASSERT_EQ(desk.Create({{BoxKind::YesNo, "Katalogen är ej tom", "", Answer::Yes}}),
              CreateResult::Done);
    EXPECT_THAT(desk.Package(), ElementsAre("self.exe", "starta.exe"));
    EXPECT_EQ(desk.Get("starta.exe"), "start");
    desk.machine.files.PutFolder("C:\\Upp");
    FolderSink sink(desk.machine.files, "C:\\Upp");
    Payload().Extract(sink);
    Package package = OpenPackage(desk.machine.files, "C:\\Upp");
    EXPECT_THAT(VerifyPackage(desk.machine.files, package), ElementsAre());
    EXPECT_TRUE(package.manifest.Names("starta.exe"));
}

TEST_F(SelfExtractingFile, RemovesNoFileThatItHasNotCopied)
{
    desk.project.RunAppSelfX.ProgramFilename = "C:\\Data\\saknas.exe";
    desk.machine.files.Put("C:\\Ut\\saknas.exe", "another");
    ASSERT_EQ(desk.Create({{BoxKind::YesNo, "Katalogen är ej tom", "", Answer::Yes}}),
              CreateResult::Done);
    EXPECT_EQ(desk.Get("saknas.exe"), "another");
}

TEST_F(SelfExtractingFile, RemovesAllOfThePackage)
{
    desk.project.InstallOptions.UninstallSupport = kOn;
    desk.project.Lists.RunScriptBefore = "MESSAGE 'a'";
    desk.AddFile("c.dll")[CopyOptions] = "RA";
    desk.project.DialogBoxes.LicenseInfoRtfDlg = 1;
    desk.project.DialogBoxData.LicenseFilenameRtf = "C:\\Data\\avtal.rtf";
    desk.machine.files.Put("C:\\Data\\avtal.rtf", "{\\rtf1 a}");
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_THAT(desk.statusLines, IsSupersetOf({"Kopierar QNREG32.EXE", "Kopierar QNXREG2.EXE",
                                                "Kopierar QNXUNIN.EXE", "Kopierar LICENSE.RTF"}));
    EXPECT_THAT(desk.Package(), ElementsAre("self.exe"));
}

TEST_F(SelfExtractingFile, SendsProgramsThroughTheFilterAlsoInTheContainer)
{
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    const SolidReader payload = Payload();
    std::vector<Text> names;
    for (const SolidFile& file : payload.Table().files) {
        names.push_back(file.name);
        if (file.name != "FILEDATA.DAT")
            continue;
        ASSERT_EQ(file.runs.size(), 3U);
        EXPECT_EQ(file.runs[1].filter, SolidFilter::X86);
        EXPECT_EQ(file.runs[1].size, desk.machine.files.Get("C:\\Data\\prog.exe").size());
        EXPECT_EQ(file.runs[2].filter, SolidFilter::None);
        EXPECT_FALSE(file.modified);
    }
    EXPECT_THAT(names, ElementsAre("QNS32X.BIN", "FILEDATA.DAT", "DUNZIP32.DLL", "SETUP.EXE",
                                   "FILELIST.INF", "QNSETUP.INF", "SWEDISH.LNG", "PACKAGE.SHA256"));
}

TEST_F(SelfExtractingFile, KeepsAnEncryptedContainerPacked)
{
    desk.project.DialogBoxes.PasswordDlg = 1;
    desk.project.DialogBoxData.CorrectPassword = "hemligt";
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    desk.machine.files.PutFolder("C:\\Upp");
    FolderSink sink(desk.machine.files, "C:\\Upp");
    Payload().Extract(sink);
    Package package = OpenPackage(desk.machine.files, "C:\\Upp");
    EXPECT_THAT(VerifyPackage(desk.machine.files, package), ElementsAre());
    EXPECT_TRUE(package.container->Entries().back().isEncrypted);
    EXPECT_FALSE(package.container->Entries().back().isStored);
}

TEST_F(SelfExtractingFile, HasTheSameBytesWheneverItIsMade)
{
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    const std::string first = desk.Get("self.exe");
    desk.machine.machine.now = {2026, 5, 6, 7, 8, 9};
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_TRUE(desk.Get("self.exe") == first);
}

TEST_F(SelfExtractingFile, SaysWhoseItIs)
{
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    const FileVersionData version = Version();
    EXPECT_EQ(version.CompanyName, "Firma AB");
    EXPECT_EQ(version.ProductName, "Båtar & sjö");
    EXPECT_EQ(version.FileDescription, "Båtar & sjö");
    EXPECT_EQ(version.FileVersion, "2.10");
    EXPECT_EQ(version.ProductVersion, "2.10");
    const std::string bytes = desk.Get("self.exe");
    EXPECT_THAT(bytes, HasSubstr("name=\"FirmaAB.Btarsj\" version=\"2.10.0.0\""));
    EXPECT_THAT(bytes, HasSubstr("<description>Båtar &amp; sjö</description>"));
    EXPECT_THAT(bytes, HasSubstr("level=\"asInvoker\""));
    EXPECT_EQ(Payload().Table().Property(SelfExtractAttribute::kProductName), "Båtar & sjö");
}

TEST_F(SelfExtractingFile, CarriesEverySizeOfTheIcon)
{
    desk.machine.files.Put("C:\\Data\\båt.ico", test::PlainIconFile());
    desk.project.InstallOptionsInternet.SelfExtractIconFilename = "C:\\Data\\båt.ico";
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    const std::string bytes = desk.Get("self.exe");
    EXPECT_THAT(bytes, HasSubstr(test::PlainIconPicture(100, false)));
    EXPECT_THAT(bytes, HasSubstr(test::PlainIconPicture(300, true)));
    EXPECT_EQ(Version().CompanyName, "Firma AB");
}

TEST_F(SelfExtractingFile, HasTheStandardIconWhereTheProjectNamesNone)
{
    std::ifstream file(QUILLON_TEST_DATA "/../resources/Res/SelfExtract.ico", std::ios::binary);
    const std::string icon{std::istreambuf_iterator<char>(file), {}};
    desk.machine.files.Put("C:\\Quillon\\Res\\SelfExtract.ico", icon);
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    const std::string bytes = desk.Get("self.exe");
    const auto standard = IconResources(icon);
    ASSERT_TRUE(standard.has_value());
    EXPECT_EQ(standard->size(), 6U); // 16, 24, 32, 48 and 256 pixels, and the list of them
    for (const ProgramResource& picture : *standard)
        EXPECT_NE(bytes.find(picture.bytes), std::string::npos) << picture.id;
}

TEST_F(SelfExtractingFile, TellsAStandardIconThatIsMissing)
{
    desk.machine.files.nodes.erase("c:\\quillon\\res\\selfextract.ico");
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_EQ(desk.statusLines[desk.statusLines.size() - 2],
              "Fel #53 inträffade när en självuppackande installation skulle skapas!");
    ASSERT_TRUE(desk.failure.has_value());
    EXPECT_EQ(desk.failure->Path(), "C:\\Quillon\\Res\\SelfExtract.ico");
}

TEST_F(SelfExtractingFile, TellsAnIconThatIsNone)
{
    desk.machine.files.Put("C:\\Data\\båt.ico", "no icon");
    desk.project.InstallOptionsInternet.SelfExtractIconFilename = "C:\\Data\\båt.ico";
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_THAT(
        desk.statusLines,
        IsSupersetOf({"Fel #39 inträffade när en självuppackande installation skulle skapas!",
                      " - Ikonen till den självuppackande filen kan ej öppnas!",
                      "Kan ej skapa SELF.EXE!"}));
    EXPECT_EQ(desk.statusLines.back(), "Kan ej skapa SELF.EXE!");
    EXPECT_FALSE(desk.Has("self.exe"));
}

TEST_F(SelfExtractingFile, LeavesEverythingAfterAFailure)
{
    desk.machine.files.nodes.erase("c:\\quillon\\release\\qnselfx.exe");
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_THAT(desk.Package(),
                ElementsAre("DUNZIP32.DLL", "FILEDATA.DAT", "FILELIST.INF", "INSTALL.ADX",
                            "INSTALL.ZIP", "PACKAGE.SHA256", "QNS32X.BIN", "QNSETUP.INF",
                            "SETUP.EXE", "SWEDISH.LNG"));
    EXPECT_EQ(desk.statusLines[desk.statusLines.size() - 2],
              "Fel #53 inträffade när en självuppackande installation skulle skapas!");
    ASSERT_TRUE(desk.failure.has_value());
    EXPECT_EQ(desk.failure->Path(), "C:\\Quillon\\Release\\QNSELFX.EXE");
}

TEST_F(SelfExtractingFile, TellsABlankInTheDestinationAfterAFailureAlone)
{
    const ExpectedBox blank{
        BoxKind::Critical, "Info",
        "Destinationskatalogen (dit installationsfilerna kopieras till) får ej innehålla "
        "mellanslag när ett självuppackande installationsprogram skapas! Avlägsna alla mellanslag "
        "i sökvägen och försök igen!"};
    desk.machine.files.PutFolder("C:\\Ut hit");
    desk.form.tDestinationDir = "C:\\Ut hit";
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    desk.machine.files.nodes.erase("c:\\quillon\\release\\qnselfx.exe");
    EXPECT_EQ(desk.Create({blank}), CreateResult::Failed);
}

TEST_F(SelfExtractingFile, IsCalledSelfWhereItHasNoName)
{
    desk.project.InstallOptionsInternet.SelfExtractFilename = "";
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(desk.project.InstallOptionsInternet.SelfExtractFilename, "SELF.EXE");
    EXPECT_THAT(desk.Package(), ElementsAre("SELF.EXE"));
}

TEST_F(SelfExtractingFile, LeavesTheAutorunFile)
{
    desk.project.InstallOptions.CreateAutorunFile = kOn;
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_THAT(desk.Package(), ElementsAre("AUTORUN.INF", "self.exe"));
}

TEST_F(SelfExtractingFile, IsNotMadeOfFilesThatCouldNotBePacked)
{
    desk.machine.files.At("C:\\Data\\b.txt").unreadable = true;
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_EQ(desk.statusLines.back(), "Processen avbruten!");
    EXPECT_FALSE(desk.Has("self.exe"));
}

TEST_F(SelfExtractingFile, IsRefusedBeforeTheWorkWhereItWouldBeTooLarge)
{
    desk.machine.files.At("C:\\Data\\b.txt").status.size = 0x100000000;
    const ExpectedBox tooLarge{
        BoxKind::Critical, "För stor installation",
        "Filerna är tillsammans större än 4 GB, och så stort kan ett självuppackande "
        "installationsprogram inte vara! Välj ett annat medium."};
    EXPECT_EQ(desk.Create({tooLarge}), CreateResult::Stopped);
    EXPECT_TRUE(desk.statusLines.empty());
    EXPECT_TRUE(desk.Package().empty());
}

TEST_F(SelfExtractingFile, IsDescribedByNumbersInTheirOrder)
{
    desk.project.InstallOptionsInternet.SelfExtractIconFilename = "C:\\Data\\båt.ico";
    desk.machine.files.Put("C:\\Data\\båt.ico", test::PlainIconFile());
    desk.project.Sign = {.SignSelfExtractFile = kOn,
                         .SignDescription = "Båtar",
                         .SignURL = "https://firma.example",
                         .SignSPCFilename = "C:\\n\\a.spc",
                         .SignPVKFilename = "C:\\n\\a.pvk",
                         .SignTimeStampSystem = 1};
    EXPECT_EQ(Described("[PreLoader]\r\nMsg_Extract=Vänta...\r\n[Setup]\r\nX=1\r\n"),
              "Quillon self-extracting program 1\r\n0=0\r\n200=4\r\n202=<WinTemp>\\\\QNEXPAND\r\n"
              "100=C:\\\\Ut\\\\INSTALL.ZIP\r\n101=C:\\\\Ut\\\\self.exe\r\n"
              "103=C:\\\\Data\\\\båt.ico;0\r\n300=-1\r\n301=0\r\n302=1\r\n303=0\r\n600=0\r\n"
              "500=0\r\n502=0\r\n501=-1\r\n8500=0;<WinTemp>\\\\QNEXPAND\\\\SETUP.EXE\r\n"
              "72500=1\r\n72501=\r\n72502=Vänta...\r\n72400=2\r\n700=-1\r\n701=Båtar\r\n"
              "702=https://firma.example\r\n703=C:\\\\n\\\\a.spc\r\n704=C:\\\\n\\\\a.pvk\r\n"
              "705=1\r\n9001=Firma AB\r\n9002=Båtar & sjö\r\n9003=2.10\r\n9004=Båtar & sjö\r\n"
              "9005=[PreLoader]\\r\\nMsg_Extract=Vänta...\\r\\n\r\n9006=\r\n");
}

TEST_F(SelfExtractingFile, IsDescribedWithoutWhatItDoesNotHave)
{
    desk.project.InstallOptionsInternet.ExpandEXEInWinTempMap = kOff;
    desk.project.InstallOptions.SetupName = "INSTALL.EXE";
    EXPECT_EQ(Described("[PreLoader]\r\n"),
              "Quillon self-extracting program 1\r\n0=0\r\n200=1\r\n100=C:\\\\Ut\\\\INSTALL.ZIP\r\n"
              "101=C:\\\\Ut\\\\self.exe\r\n300=-1\r\n301=0\r\n302=1\r\n303=0\r\n600=0\r\n500=0\r\n"
              "502=0\r\n501=-1\r\n8500=0;<Exe>\\\\INSTALL.EXE\r\n72400=2\r\n700=0\r\n"
              "9001=Firma AB\r\n9002=Båtar & sjö\r\n9003=2.10\r\n9004=Båtar & sjö\r\n"
              "9005=[PreLoader]\\r\\n\r\n9006=\r\n");
}

TEST_F(SelfExtractingFile, ShowsTheMessageThatIsDescribed)
{
    EXPECT_THAT(Described("[PreLoader]\r\nMsg_Extract=\"Vänta...\"\r\nMsg_NoRuntime=\"b\"\r\n"),
                testing::AllOf(HasSubstr("72502=Vänta...\r\n"),
                               HasSubstr("9005=[PreLoader]\\r\\nMsg_Extract=Vänta...\\r\\n"
                                         "Msg_NoRuntime=\"b\"\\r\\n\r\n")));
    const std::string longest(200, 'x');
    EXPECT_THAT(Described("[PreLoader]\r\nMsg_Extract=" + longest + "y\r\n"),
                testing::AllOf(HasSubstr("72502=" + longest + "\r\n"),
                               HasSubstr("Msg_Extract=" + longest + "\\r\\n\r\n")));
}

TEST_F(SelfExtractingFile, ShowsAMessageOfEveryAlphabet)
{
    const auto isDescribed =
        testing::AllOf(HasSubstr("72502=Подготовка 𝄞\r\n"),
                       HasSubstr("9005=[PreLoader]\\r\\nMsg_Extract=Подготовка 𝄞\\r\\n\r\n"));
    const Text file = "[PreLoader]\r\nMsg_Extract=\"Подготовка 𝄞\"\r\n";
    EXPECT_THAT(Described("\xEF\xBB\xBF" + file), isDescribed);
    EXPECT_THAT(Described("\xFF\xFE" + ToUtf16(file)), isDescribed);
    Text longest;
    for (int i = 0; i < 200; ++i)
        longest += "я";
    EXPECT_THAT(Described("\xEF\xBB\xBF[PreLoader]\r\nMsg_Extract=" + longest + "ю\r\n"),
                HasSubstr("72502=" + longest + "\r\n"));
}

TEST_F(SelfExtractingFile, TakesItsTextsFromTheSectionAndNoRemark)
{
    EXPECT_THAT(Described("; Texts of [PreLoader]\r\n[Setup]\r\nMsg_Extract=b\r\n[preloader]\r\n"
                          "Msg_Extract=Vänta\r\n[Setup]\r\nX=1\r\n"),
                testing::AllOf(HasSubstr("72502=Vänta\r\n"),
                               HasSubstr("9005=[PreLoader]\\r\\nMsg_Extract=Vänta\\r\\n\r\n")));
}

TEST_F(SelfExtractingFile, AsksForTheRightsThatTheSetupAsksFor)
{
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(Payload().Table().Property(SelfExtractAttribute::kElevates), "");
    desk.machine.files.Put("C:\\Quillon\\Release\\SETUP32.EXE",
                           "<requestedExecutionLevel level=\"requireAdministrator\"/>");
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(Payload().Table().Property(SelfExtractAttribute::kElevates), "1");
}

TEST_F(SelfExtractingFile, TellsNoPathsOfTheMachineThatMadeIt)
{
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    const SolidReader payload = Payload();
    for (const SolidProperty& property : payload.Table().properties)
        EXPECT_EQ(property.value.find("C:\\"), Text::npos) << property.number;
}

// For each write that fails: no program is left that looks finished, and the package's files are
// all there. A path that can't be set ends the step without a line of its own.
TEST_F(SelfExtractingFile, IsWholeOrNotThere)
{
    int failures = 0;
    int failuresWithoutLine = 0;
    for (int n = 1; n < 200; ++n) {
        CreateDesk fresh;
        fresh.Choose(Medium::Internet);
        fresh.machine.files.FailFromWrite(n, ErrorNumber::kDiskFull);
        const CreateResult result =
            fresh.With([](CreateRun& run) { return BuildSelfExtractingFile(run); })
                ? CreateResult::Done
                : CreateResult::Failed;
        if (result == CreateResult::Done)
            break;
        ++failures;
        EXPECT_FALSE(fresh.Has("self.exe")) << n;
        const Text& last = fresh.statusLines.back();
        const bool hasLine = last.starts_with("Fel #");
        EXPECT_TRUE(hasLine || last.starts_with("Skapar SELF.EXE ")) << last;
        failuresWithoutLine += hasLine ? 0 : 1;
    }
    EXPECT_GT(failures, 5);
    EXPECT_GT(failuresWithoutLine, 0);
    EXPECT_GT(failures, failuresWithoutLine);
}

// What lies there then is an older archive, or none.
TEST_F(SelfExtractingFile, IsNotMadeWhereTheArchiveCannotBeWritten)
{
    desk.machine.files.RefuseOutput("C:\\Ut\\INSTALL.ZIP", 70);
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_FALSE(desk.Has("self.exe"));
    EXPECT_TRUE(desk.Has("FILEDATA.DAT"));
    EXPECT_THAT(desk.statusLines,
                testing::Contains("Fel #70 inträffade när en självuppackande installation skulle "
                                  "skapas!"));
}

TEST_F(SelfExtractingFile, TellsWhyAFileCannotBePacked)
{
    desk.machine.files.Put("C:\\Ut\\låst.txt", "x");
    desk.machine.files.At("C:\\Ut\\låst.txt").unreadable = true;
    EXPECT_EQ(desk.Create({{BoxKind::YesNo, "Katalogen är ej tom", "", Answer::Yes}}),
              CreateResult::Failed);
    EXPECT_THAT(desk.statusLines,
                testing::Contains("Fel #57 inträffade när en självuppackande installation skulle "
                                  "skapas!"));
}

TEST(WithResources, RefusesWhatHasNoRoomOrIsNoProgram)
{
    EXPECT_FALSE(WithResources("no program", {}));
    const std::string program = test::MakeLinkedProgram({});
    const auto once = WithResources(program, {{ResourceType::kRawData, 1, "x"}});
    ASSERT_TRUE(once.has_value());
    EXPECT_FALSE(WithResources(*once, {{ResourceType::kRawData, 1, "x"}}));
    std::string full = program;
    full[64 + 6] = 5; // so many sections reach to the first one's bytes
    EXPECT_FALSE(WithResources(full, {{ResourceType::kRawData, 1, "x"}}));
}

TEST(IconResources, RefusesEveryCut)
{
    const std::string icon = test::PlainIconFile();
    EXPECT_EQ(IconResources(icon)->size(), 3U);
    for (std::size_t length = 0; length < icon.size(); ++length)
        EXPECT_FALSE(IconResources(std::string_view(icon).substr(0, length))) << length;
    std::string other = icon;
    other[2] = 2; // a pointer
    EXPECT_FALSE(IconResources(other));
}

TEST(SelfExtractProject, KeepsEveryText)
{
    test::MemoryHost machine;
    const SelfExtractAttributes attributes = {{701, "a\\b\r\nc=;d"}, {8500, ""}, {200, "4"}};
    WriteSelfExtractProject(machine.files, "C:\\a.adx", attributes);
    EXPECT_EQ(ReadSelfExtractProject(machine.files, "C:\\a.adx"), attributes);
    for (const char* wrong : {"", "something else", "Quillon self-extracting program 1\r\nx=1\r\n",
                              "Quillon self-extracting program 1\r\n5\r\n"}) {
        machine.files.Put("C:\\b.adx", wrong);
        EXPECT_EQ(RunErrorNumber([&] { ReadSelfExtractProject(machine.files, "C:\\b.adx"); }),
                  ErrorNumber::kDeviceIo);
    }
}

} // namespace
} // namespace quillon
