#include "builder/test_run.h"

#include "create_desk.h"
#include "formats/package_files.h"
#include "formats/setup_information.h"
#include "platform/missing_program.h"

#include <gtest/gtest.h>

namespace quillon {

using test::BoxKind;
using test::CreateDesk;
using test::ExpectedBox;
using test::ScriptedAsk;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;

namespace {

const Text kTest = "C:\\Quillon\\Test";
const Text kRuntime = kTest + "\\Qns32x.exe";

class TestRunTest : public testing::Test {
protected:
    TestRunTest()
    {
        desk.machine.files.Put(kRuntime, "runtime");
        project.Files = desk.project.Files;
    }

    template <class Start>
    bool Run(Start start, std::deque<ExpectedBox> script)
    {
        ScriptedAsk ask(std::move(script));
        TestRun run{project, desk.machine.host, ask, desk.options};
        const bool done = start(run);
        failure = run.failure;
        EXPECT_THAT(ask.statusLines, IsEmpty());
        return done;
    }
    bool Simulate(std::deque<ExpectedBox> script = {})
    {
        return Run([](TestRun& run) { return StartSimulation(run); }, std::move(script));
    }
    bool Preview(std::deque<ExpectedBox> script = {})
    {
        return Run([](TestRun& run) { return StartDesignPreview(run); }, std::move(script));
    }

    bool Has(const Text& name) const { return desk.machine.files.FileExists(JoinTest(name)); }
    std::string Get(const Text& name) const { return desk.machine.files.Get(JoinTest(name)); }
    static Text JoinTest(const Text& name) { return kTest + "\\" + name; }
    static ExpectedBox CannotTest(const Text& text)
    {
        return {BoxKind::Critical, "Kan ej testa", text};
    }

    CreateDesk desk;
    Project project = desk.project;
    std::optional<RunError> failure;
};

TEST_F(TestRunTest, WritesItsFilesAndStartsTheSetup)
{
    EXPECT_TRUE(Simulate());
    EXPECT_THAT(Get(kFileListName), HasSubstr("F1=a.txt;%DESTDIR;5;data; ;"));
    EXPECT_THAT(Get(kSetupInformationName), HasSubstr("\r\nTargetMedia = 2\r\n"));
    EXPECT_THAT(Get(kSetupInformationName), HasSubstr("\r\nFiles = 1\r\n"));
    EXPECT_EQ(Get("SWEDISH.LNG"), "[PreLoader]\r\n");
    EXPECT_THAT(desk.machine.machine.started, ElementsAre(Pair(kRuntime, "/TEST")));
    EXPECT_EQ(failure, std::nullopt);
}

TEST_F(TestRunTest, ChecksTheProjectFirst)
{
    const auto refuses = [&](const Text& what) {
        EXPECT_FALSE(Simulate({{BoxKind::Inform, "Fel", "Kan ej simulera! " + what}}));
        EXPECT_FALSE(Has(kFileListName));
        EXPECT_THAT(desk.machine.machine.started, IsEmpty());
    };
    project.ProjectName.ProjectName.clear();
    refuses("Du måste ange ett projektnamn först!");
    project.InstallDirectories.DestinationDirectory.clear();
    refuses("Filerna i fillistan saknar en huvudkatalog!");
    project.Files.rows.clear();
    refuses("Det finns inga filer i fillistan!");
}

TEST_F(TestRunTest, WarnsOfNoSystemFiles)
{
    desk.AddFile("shdocvw.dll");
    desk.AddFile("mfc42.dll", "bytes", "%DESTDIR");
    project.Files = desk.project.Files;
    project.InstallOptions.UninstallSupport = kOn;
    project.InstallOptions.CreateUninstallIcon = kOn;
    EXPECT_TRUE(Simulate());
}

TEST_F(TestRunTest, TakesTheMediumOfACdWhateverTheProjectsOwn)
{
    project.RunAppSelfX.ProgramFilename = "c:\\data\\a.txt";
    for (const Integer medium : std::initializer_list<Integer>{1, 2, 3, 4, 77}) {
        project.Media.TargetMedia = medium;
        EXPECT_TRUE(Simulate());
        const std::string written = Get(kSetupInformationName);
        EXPECT_THAT(written, HasSubstr("\r\nTargetMedia = 2\r\n")) << medium;
        EXPECT_THAT(written, Not(HasSubstr("Floppies"))) << medium;
        EXPECT_THAT(written, Not(HasSubstr("[RunAppSelfX]"))) << medium;
        EXPECT_EQ(project.Media.TargetMedia, medium);
    }
}

TEST_F(TestRunTest, LeavesTheProjectAsItIs)
{
    project.Media.TargetMedia = 1;
    project.ProgramGroup.ProgramGroup.clear();
    EXPECT_TRUE(Simulate());
    EXPECT_THAT(Get(kSetupInformationName), HasSubstr("\r\nProgramGroup = Demo\r\n"));
    EXPECT_EQ(project.ProgramGroup.ProgramGroup, "");
    EXPECT_TRUE(Preview());
    EXPECT_THAT(Get(kSetupInformationName), HasSubstr("\r\nProgramGroup = Demo\r\n"));
    EXPECT_THAT(Get(kSetupInformationName), HasSubstr("\r\nTargetMedia = 1\r\n"));
    EXPECT_EQ(project.ProgramGroup.ProgramGroup, "");
    EXPECT_EQ(project.Media.TargetMedia, 1);
}

TEST_F(TestRunTest, NamesPicturesAndTextsByTheirAbsolutePaths)
{
    project.DesBackground.PictureFilename = "c:\\bilder\\bak.jpg";
    project.DesPictures.Pictures[1].PictureFilename = "c:\\bilder\\två.bmp";
    project.DesLogotype.LogotypeFilename = "c:\\bilder\\logo.wmf";
    project.DesSound.BackSoundFilename = "c:\\ljud\\in.wav";
    project.DesRTFbox.RTFfilename = "info.rtf";
    project.DialogBoxData.WelcomeDlgBitmap = "c:\\bilder\\sida.bmp";
    project.DialogBoxes.DlgBitmap = "C:\\Quillon\\Res\\SetupDef.bmp";
    EXPECT_TRUE(Simulate());
    const std::string written = Get(kSetupInformationName);
    for (const char* line :
         {"PictureFilename = c:\\bilder\\bak.jpg", "LogotypeFilename = c:\\bilder\\logo.wmf",
          "BackSoundFilename = c:\\ljud\\in.wav", "RTFfilename = C:\\Quillon\\RTF\\info.rtf",
          "WelcomeDlgBitmap = c:\\bilder\\sida.bmp", "DlgBitmap = "})
        EXPECT_THAT(written, HasSubstr("\r\n" + Text(line) + "\r\n"));
    EXPECT_EQ(ReadSetupInformation(written).project.DesPictures.Pictures[1].PictureFilename,
              "c:\\bilder\\två.bmp");
}

struct FileFailure {
    int error;
    const char* text;
};

TEST_F(TestRunTest, TellsWhyTheFileListCouldNotBeWritten)
{
    // clang-format off
    const FileFailure cases[] = {
        {53, "Ett fel inträffade när fillista-filen FILELIST.INF skulle skapas! En eller flera filer kan inte hittas på hårddisken. Sannolikt har de flyttats eller fått nya filnamn."},
        {76, "Ett fel inträffade när fillista-filen FILELIST.INF skulle skapas! Kan ej hitta angivna källsökvägar/mappar på hårddisken. Sannolikt har en eller flera mappar fått nya namn eller flyttats."},
        {61, "Fel #61 inträffade när fillista-filen FILELIST.INF skulle skapas!"},
        {70, "Fel #70 inträffade när fillista-filen FILELIST.INF skulle skapas!"},
    };
    // clang-format on
    project.Media.TargetMedia = 4;
    for (const FileFailure& expected : cases) {
        desk.machine.files.RefuseOutput(JoinTest(kFileListName), expected.error);
        EXPECT_FALSE(Simulate({CannotTest(expected.text)}));
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->Number(), expected.error);
        EXPECT_FALSE(Has(kSetupInformationName));
        EXPECT_FALSE(Has("SWEDISH.LNG"));
        EXPECT_EQ(project.Media.TargetMedia, 4);
    }
    EXPECT_THAT(desk.machine.machine.started, IsEmpty());
}

TEST_F(TestRunTest, TellsOfSourcesThatAreGone)
{
    desk.machine.files.RemoveFile("C:\\Data\\a.txt");
    EXPECT_FALSE(Simulate({CannotTest("")}));
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), 53);
    desk.machine.files.RemoveFolder("C:\\Data");
    EXPECT_FALSE(Simulate({CannotTest("")}));
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), 76);
}

TEST_F(TestRunTest, TellsWhyTheSetupInformationCouldNotBeWritten)
{
    project.Media.TargetMedia = 3;
    project.ProgramGroup.ProgramGroup.clear();
    desk.machine.files.RefuseOutput(JoinTest(kSetupInformationName), 75);
    EXPECT_FALSE(Simulate(
        {CannotTest("Fel #75 inträffade när informationsfilen QNSETUP.INF skulle skapas!")}));
    EXPECT_TRUE(Has(kFileListName));
    EXPECT_FALSE(Has("SWEDISH.LNG"));
    EXPECT_EQ(project.Media.TargetMedia, 3);
    EXPECT_EQ(project.ProgramGroup.ProgramGroup, "");
    EXPECT_THAT(desk.machine.machine.started, IsEmpty());
}

TEST_F(TestRunTest, TellsOfAnOverflowInTheProject)
{
    project.DesPicturesAnim.NrAnimPictures = 22;
    EXPECT_FALSE(Simulate(
        {CannotTest("Fel #9 inträffade när informationsfilen QNSETUP.INF skulle skapas!")}));
}

TEST_F(TestRunTest, TellsWhyTheLanguageFileCouldNotBeCopied)
{
    const auto refuses = [&](const Text& name, int error) {
        project.Language.LanguageFile = name;
        EXPECT_FALSE(
            Simulate({CannotTest("Fel #" + NumberText(error) + " inträffade när språkfilen '" +
                                 name + "' skulle kopieras!")}));
        EXPECT_EQ(project.Language.LanguageFile, name);
    };
    refuses("ENGLISH.LNG", 53);
    refuses("", 52);
    refuses("..\\..\\SECRET.TXT", 52);
    refuses("../../SECRET.TXT", 52);
    refuses("C:\\SECRET.TXT", 52);
    refuses("C:SECRET.TXT", 52);
    desk.machine.files.RemoveFile("C:\\Quillon\\Language\\SWEDISH.LNG");
    desk.machine.files.RemoveFolder("C:\\Quillon\\Language");
    refuses("SWEDISH.LNG", 76);
    EXPECT_THAT(desk.machine.machine.started, IsEmpty());
}

TEST_F(TestRunTest, BringsTheAgreementOfTheProject)
{
    desk.machine.files.Put("C:\\Data\\avtal.rtf", "{\\rtf1 Avtal}");
    project.DialogBoxData.LicenseFilenameRtf = "C:\\Data\\avtal.rtf";
    EXPECT_TRUE(Simulate());
    EXPECT_FALSE(Has(kLicenseRtfName)) << "the page is off";
    project.DialogBoxes.LicenseInfoRtfDlg = 1;
    EXPECT_TRUE(Simulate());
    EXPECT_EQ(Get(kLicenseRtfName), "{\\rtf1 Avtal}");
    EXPECT_EQ(project.DialogBoxData.LicenseFilenameRtf, "C:\\Data\\avtal.rtf");

    // A file that was copied there by hand is one of the project's too.
    project.DialogBoxData.LicenseFilenameRtf = "c:\\quillon\\test\\license.rtf";
    EXPECT_TRUE(Simulate());
    EXPECT_EQ(Get(kLicenseRtfName), "{\\rtf1 Avtal}");
}

TEST_F(TestRunTest, ShowsNoAgreementOfAnotherProject)
{
    desk.machine.files.Put(JoinTest(kLicenseRtfName), "{\\rtf1 En annans}");
    project.DialogBoxes.LicenseInfoRtfDlg = 1;
    EXPECT_TRUE(Simulate());
    EXPECT_FALSE(Has(kLicenseRtfName));
}

TEST_F(TestRunTest, TellsWhyTheAgreementCouldNotBeCopied)
{
    project.DialogBoxes.LicenseInfoRtfDlg = 1;
    project.DialogBoxData.LicenseFilenameRtf = "C:\\Data\\avtal.rtf";
    EXPECT_FALSE(Simulate({CannotTest(
        "Fel #53 inträffade när licensavtalet 'C:\\Data\\avtal.rtf' skulle kopieras!")}));
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), 53);
    EXPECT_THAT(desk.machine.machine.started, IsEmpty());
}

TEST_F(TestRunTest, TellsWhyTheSetupCouldNotBeStarted)
{
    project.Media.TargetMedia = 1;
    for (const int error : {5, 53, 76}) {
        desk.machine.machine.startFailure = error;
        EXPECT_FALSE(Simulate(
            {CannotTest("Fel #" + NumberText(error) +
                        " inträffade när 32-bitars inladdaren 'QNS32X.EXE' skulle anropas!")}));
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->Number(), error);
        EXPECT_EQ(project.Media.TargetMedia, 1);
    }
}

TEST_F(TestRunTest, MakesTheFolderWhereItIsMissing)
{
    desk.machine.files.RemoveFile(kRuntime);
    desk.machine.files.RemoveFolder(kTest);
    EXPECT_TRUE(Simulate());
    EXPECT_TRUE(Has("SWEDISH.LNG"));
}

TEST_F(TestRunTest, TellsOfAFolderThatCanNotBeMade)
{
    desk.machine.files.RemoveFile(kRuntime);
    desk.machine.files.RemoveFolder(kTest);
    desk.machine.files.refuseFolders = true;
    EXPECT_FALSE(Simulate({CannotTest("Fel #76 inträffade när katalogen 'C:\\Quillon\\Test' skulle "
                                      "skapas!")}));
    EXPECT_FALSE(Preview({{BoxKind::Critical, "Kan ej förhandsgranska",
                           "Fel #76 inträffade när katalogen 'C:\\Quillon\\Test' skulle "
                           "skapas!"}}));
    EXPECT_THAT(desk.machine.machine.started, IsEmpty());
}

TEST_F(TestRunTest, OverwritesTheFilesOfTheRunBefore)
{
    EXPECT_TRUE(Simulate());
    const std::string first = Get(kFileListName);
    desk.AddFile("b.txt");
    project.Files = desk.project.Files;
    EXPECT_TRUE(Simulate());
    EXPECT_THAT(Get(kFileListName), HasSubstr("F2=b.txt;"));
    project.Files.rows.pop_back();
    EXPECT_TRUE(Simulate());
    EXPECT_EQ(Get(kFileListName), first);
}

TEST_F(TestRunTest, PreviewsTheScreenOfAnyProjectWithoutTheFileList)
{
    desk.machine.files.Put(JoinTest(kFileListName), "earlier");
    project = Project{};
    project.DesTitle.TitleText = "Titel";
    EXPECT_TRUE(Preview());
    EXPECT_EQ(Get(kFileListName), "earlier");
    EXPECT_FALSE(Has("SWEDISH.LNG"));
    EXPECT_THAT(Get(kSetupInformationName), HasSubstr("\r\nFileSubType = PreviewFile\r\n"));
    EXPECT_THAT(desk.machine.machine.started, ElementsAre(Pair(kRuntime, "/PREVIEW")));
}

TEST_F(TestRunTest, TellsWhyTheScreenCouldNotBePreviewed)
{
    desk.machine.files.RefuseOutput(JoinTest(kSetupInformationName), 61);
    EXPECT_FALSE(
        Preview({{BoxKind::Critical, "Kan ej förhandsgranska",
                  "Fel #61 inträffade när informationsfilen QNSETUP.INF skulle skapas!"}}));
    EXPECT_THAT(desk.machine.machine.started, IsEmpty());
}

TEST_F(TestRunTest, TellsThatThePreviewCouldNotBeStarted)
{
    desk.machine.machine.startFailure = 5;
    EXPECT_FALSE(
        Preview({{BoxKind::Critical, "Kan ej förhandsgranska",
                  "Fel #5 inträffade när 32-bitars inladdaren 'QNS32X.EXE' skulle anropas!"}}));
}

TEST_F(TestRunTest, RunsInTheUsersFolderWhereTheToolsIsClosed)
{
    const Text own = "C:\\Data\\Quillon";
    desk.options.OwnFolder = own;
    desk.machine.files.Put(own + "\\Language\\FINSKA.LNG", "egen");
    project.Language.LanguageFile = "FINSKA.LNG";
    desk.machine.files.Put(own + "\\RTF\\info.rtf", "{\\rtf1 egen}");
    project.DesRTFbox.RTFfilename = "info.rtf";
    EXPECT_TRUE(Simulate());
    EXPECT_EQ(ReadSetupInformation(desk.machine.files.Get(own + "\\Test\\QNSETUP.INF"))
                  .project.DesRTFbox.RTFfilename,
              own + "\\RTF\\info.rtf");
    EXPECT_FALSE(Has(kFileListName)) << "nothing is written beside the tool";
    EXPECT_TRUE(desk.machine.files.FileExists(own + "\\Test\\FILELIST.INF"));
    EXPECT_EQ(desk.machine.files.Get(own + "\\Test\\FINSKA.LNG"), "egen");
    EXPECT_EQ(desk.machine.files.Get(own + "\\Test\\Qns32x.exe"), "runtime");
    EXPECT_TRUE(Preview());
    EXPECT_THAT(desk.machine.machine.started,
                ElementsAre(Pair(own + "\\Test\\Qns32x.exe", "/TEST"),
                            Pair(own + "\\Test\\Qns32x.exe", "/PREVIEW")));
}

TEST_F(TestRunTest, LeavesTheSetupAloneThatAnOpenTestRunsFrom)
{
    desk.options.OwnFolder = "C:\\Data\\Quillon";
    const Text own = desk.options.OwnFolder + "\\Test\\Qns32x.exe";
    EXPECT_TRUE(Simulate());
    const auto running = desk.machine.files.At(own).bytes;
    EXPECT_TRUE(Simulate());
    EXPECT_TRUE(Preview());
    EXPECT_EQ(desk.machine.files.At(own).bytes, running) << "it is not even written anew";

    // A newer one of the same size takes its place; what runs keeps its bytes.
    desk.machine.files.Put(kRuntime, "RUNTIME");
    EXPECT_TRUE(Simulate());
    EXPECT_EQ(desk.machine.files.Get(own), "RUNTIME");
    EXPECT_EQ(*running, "runtime");
}

TEST_F(TestRunTest, KeepsTheFormerSetupWhereTheNewOneCanNotBeCopied)
{
    desk.options.OwnFolder = "C:\\Data\\Quillon";
    const Text own = desk.options.OwnFolder + "\\Test\\Qns32x.exe";
    EXPECT_TRUE(Preview());
    desk.machine.files.Put(kRuntime, "a newer runtime");
    desk.machine.files.RefuseOutput(own + ".tmp1", 61);
    EXPECT_FALSE(
        Preview({{BoxKind::Critical, "Kan ej förhandsgranska",
                  "Fel #61 inträffade när 32-bitars inladdaren 'QNS32X.EXE' skulle anropas!"}}));
    EXPECT_EQ(desk.machine.files.Get(own), "runtime");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), 61);
}

/// A machine that can't run what the setup is.
class WithoutWine : public test::FixedMachine {
public:
    void StartProgram(const Text& program, const Text&) override
    {
        throw MissingProgram("Wine", program);
    }
};

TEST_F(TestRunTest, SaysThatWineIsMissing)
{
    const Text advice = "\r\n\r\nWine saknas på den här datorn. Programmet behövs för att visa "
                        "installationen; installera det och försök igen.";
    const Text text = "Fel #5 inträffade när 32-bitars inladdaren 'QNS32X.EXE' skulle anropas!";
    WithoutWine machine;
    Host host{desk.machine.files, machine};
    ScriptedAsk ask(
        {CannotTest(text + advice), {BoxKind::Critical, "Kan ej förhandsgranska", text + advice}});
    TestRun run{project, host, ask, desk.options};
    EXPECT_FALSE(StartSimulation(run));
    EXPECT_FALSE(StartDesignPreview(run));
    ASSERT_TRUE(run.failure);
    EXPECT_EQ(run.failure->Number(), 5);
}

} // namespace
} // namespace quillon
