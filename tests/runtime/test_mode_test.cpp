#include "runtime/test_mode.h"

#include "platform/run_error.h"
#include "runtime/pages/page_order.h"
#include "runtime/silent_ask.h"
#include "runtime/support/memory_target.h"
#include "runtime/support/scripted_pages.h"
#include "support/golden.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon {

using test::BoxKind;
using test::ExpectedBox;
using test::GoldenFile;
using test::MemoryHost;
using test::ScriptedAsk;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const Text kFolder = "C:\\Quillon\\Test";
const Text kSetup = kFolder + "\\QNSETUP.INF";
// A line of the project's script that says nothing to the setup.
constexpr const char* kNoCommand = "\r\n[Registry]\r\n\r\n....\r\n\r\n[RunScriptAfter]";
constexpr const char* kNoLine = "\r\n\r\n....\r\n\r\n[RunScriptAfter]";
const Text kList = kFolder + "\\FILELIST.INF";

class TestModeTest : public testing::Test {
protected:
    TestModeTest()
    {
        const std::string full = ReplaceAll(GoldenFile("builder/full_project/QNSETUP_test_run.INF"),
                                            "\r\nFiles = 7\r\n", "\r\nFiles = 0\r\n");
        memory.files.Put(kSetup, ReplaceAll(full, kNoCommand, kNoLine));
        memory.files.Put(kList, GoldenFile("builder/file_list/FILELIST_no_rows.INF"));
    }

    /// A run on what lies in the folder, which it must leave as it is but for the log.
    ExitCode Run(const Text& line, std::deque<ExpectedBox> script = {},
                 std::deque<test::ScriptedPages::Step> steps = {})
    {
        ScriptedAsk user(std::move(script));
        SilentAsk nobody;
        const Switches switches = ReadSwitches(line);
        LoadedPackage package = LoadForTest(memory.files, kFolder, *switches.testMode);
        const std::map<Text, std::string> before = Files();
        shown.clear();
        test::ScriptedPages pages(std::move(steps));
        const ExitCode code =
            RunTest({memory.host, target, switches.silent ? static_cast<Ask&>(nobody) : user,
                     switches, pages, [&](const TestWindow& window) { shown.push_back(window); }},
                    package);
        std::map<Text, std::string> after = Files();
        after.erase("c:\\log.txt");
        std::erase_if(after, [](const auto& file) {
            return file.first.find("\\qnsetup-") != std::string::npos;
        });
        EXPECT_EQ(after, before);
        return code;
    }
    std::map<Text, std::string> Files() const
    {
        std::map<Text, std::string> all;
        for (const auto& [path, node] : memory.files.nodes)
            all[path] = node.bytes ? *node.bytes : "folder";
        return all;
    }

    MemoryHost memory;
    test::MemoryTarget target{&memory.files};
    std::vector<TestWindow> shown;
};

TEST_F(TestModeTest, TellsTheAuthorOfAFaultyScript)
{
    memory.files.Put(kSetup, ReplaceAll(memory.files.Get(kSetup), kNoLine, kNoCommand));
    EXPECT_EQ(Run("/TEST", {{BoxKind::Critical, "Test av Räkna",
                             "Testet kan inte visas (fel i skriptet före installationen, rad 2: "
                             "okänt kommando '[Registry]'). Starta det på nytt."}}),
              ExitCode::Failed);
}

Project WithPages()
{
    Project project;
    project.ProjectName.ProjectName = "Räkna";
    return project;
}

TestWindow PagesOf(const Project& project, const LanguageTexts& texts = {})
{
    LoadedPackage package;
    package.setup.project = project;
    package.texts = texts;
    return DescribePages(package);
}

} // namespace

TEST(DescribePages, NamesTheProjectAndItsPagesInOrder)
{
    Project project = WithPages();
    project.DialogBoxData.WelcomeDlgTitle = "Hej!";
    project.DialogBoxData.InstallCompleteDlgTitle = " ";
    project.DialogBoxes.PasswordDlg = 1;
    project.DialogBoxes.DestinationDlg = 0;
    const TestWindow window = PagesOf(project);
    EXPECT_EQ(window.title, "Test av Räkna");
    EXPECT_EQ(window.note, "Det här är ett test. Ingenting installeras.");
    EXPECT_EQ(window.heading, "Dialogrutor som installationen visar:");
    EXPECT_THAT(window.lines, ElementsAre("1. Hej!", "2. Lösenord", "3. Installationen avslutad"));
    EXPECT_EQ(window.close, "Stäng");
}

TEST(DescribePages, KnowsEveryPage)
{
    Project project = WithPages();
    project.DialogBoxes = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, {}};
    project.DialogBoxData.LicenseTitle = "Avtal";
    project.DialogBoxData.LicenseTitleRtf = "Avtal i RTF";
    EXPECT_THAT(PagesOf(project).lines,
                ElementsAre("1. Välkommen", "2. Generell information", "3. Generell information 2",
                            "4. Avtal", "5. Avtal i RTF", "6. Lösenord", "7. Registrering",
                            "8. Destinationsmapp", "9. Enhet", "10. Välj programgrupp",
                            "11. Starta installation", "12. Installationen avslutad"));
}

TEST(DescribePages, HasWordsForAPageWithoutATitle)
{
    Project project = WithPages();
    project.DialogBoxes = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, {}};
    project.DialogBoxData = {};
    for (Text section::DialogBoxData::*title :
         {&section::DialogBoxData::WelcomeDlgTitle, &section::DialogBoxData::GeneralDlgTitle,
          &section::DialogBoxData::GeneralDlgTitle2, &section::DialogBoxData::LicenseTitle,
          &section::DialogBoxData::LicenseTitleRtf, &section::DialogBoxData::StartInstallDlgTitle,
          &section::DialogBoxData::InstallCompleteDlgTitle})
        (project.DialogBoxData.*title).clear();
    EXPECT_THAT(PagesOf(project).lines,
                ElementsAre("1. Välkommen", "2. Generell information", "3. Generell information 2",
                            "4. Licensinformation", "5. Licensinformation (RTF)", "6. Lösenord",
                            "7. Registrering", "8. Destinationsmapp", "9. Enhet",
                            "10. Välj programgrupp", "11. Starta installation",
                            "12. Installationen avslutad"));
}

TEST(DescribePages, SaysThatThereIsNone)
{
    Project project;
    project.DialogBoxes = {0, 0, 0, 0, 0, -1, 2, 0, 0, 0, 0, 0, {}};
    const TestWindow window = PagesOf(project);
    EXPECT_EQ(window.title, "Test av ett projekt utan namn");
    EXPECT_EQ(window.heading, "Installationen visar inga dialogrutor.");
    EXPECT_THAT(window.lines, IsEmpty());
}

TEST(DescribePages, SpeaksTheLanguageOfTheProject)
{
    const LanguageTexts english("[Pages]\nPage_Destination=Folder\n[Test]\nTitle=Test of %1\n"
                                "Button_Close=Close\n");
    const TestWindow window = PagesOf(WithPages(), english);
    EXPECT_EQ(window.title, "Test of Räkna");
    EXPECT_EQ(window.close, "Close");
    EXPECT_THAT(window.lines,
                ElementsAre("1. Välkommen", "2. Folder", "3. Installationen avslutad"));
}

TEST(DescribeScreen, TellsWhatIsOnIt)
{
    LoadedPackage package;
    package.setup.project = WithPages();
    package.setup.project.DesTitle.TitleText = "Räkna 2";
    package.setup.DesWidth = 640;
    package.setup.DesHeight = 480;
    TestWindow window = DescribeScreen(package);
    EXPECT_EQ(window.title, "Förhandsgranskning av Räkna");
    EXPECT_EQ(window.heading, "Installationsskärmen:");
    EXPECT_THAT(window.lines, ElementsAre("Titel: Räkna 2", "Storlek: 640 x 480 bildpunkter"));
    package.setup.project.DesSubTitle.SubTitleText = "Bättre";
    package.setup.project.DesBackground.PictureFilename = "c:\\b.bmp";
    window = DescribeScreen(package);
    EXPECT_THAT(window.lines,
                ElementsAre("Titel: Räkna 2", "Undertitel: Bättre",
                            "Storlek: 640 x 480 bildpunkter", "Bakgrundsbild: c:\\b.bmp"));
}

TEST_F(TestModeTest, LeadsThroughThePagesAndInstallsNothing)
{
    const LoadedPackage package = LoadForTest(memory.files, kFolder, TestMode::Test);
    std::deque<test::ScriptedPages::Step> steps;
    for (const PageKind page : quillon::PagesOf(package.setup)) {
        test::ScriptedPages::Step step{page};
        if (page == PageKind::Password)
            step.act = test::Typing(PageField::Password,
                                    package.setup.project.DialogBoxData.CorrectPassword);
        steps.push_back(step);
    }
    ASSERT_GT(steps.size(), 3U);
    const Text title = "Test av " + package.setup.project.ProjectName.ProjectName;
    EXPECT_EQ(Run("/TEST",
                  {{BoxKind::Inform, title, "Det här är ett test. Ingenting installeras."}}, steps),
              ExitCode::Done);
    EXPECT_THAT(shown, IsEmpty());
}

TEST_F(TestModeTest, EndsWhereItIsCancelled)
{
    const LoadedPackage package = LoadForTest(memory.files, kFolder, TestMode::Test);
    EXPECT_EQ(
        Run("/TEST",
            {{BoxKind::YesNo, "Installation av " + package.setup.project.ProjectName.ProjectName}},
            {{quillon::PagesOf(package.setup).front(), PageAction::Cancel}}),
        ExitCode::Done);
}

TEST_F(TestModeTest, NeedsNoFileListForAPreview)
{
    memory.files.RemoveFile(kList);
    EXPECT_EQ(Run("/PREVIEW"), ExitCode::Done);
    memory.files.Put(kSetup, GoldenFile("builder/full_project/QNSETUP_preview.INF"));
    EXPECT_EQ(Run("/preview"), ExitCode::Done);
    EXPECT_EQ(shown.size(), 1U);
}

TEST_F(TestModeTest, WritesWhatItShowsToTheLogThatIsAskedFor)
{
    EXPECT_EQ(Run("/PREVIEW /S /LOG=C:\\log.txt"), ExitCode::Done);
    EXPECT_THAT(shown, IsEmpty());
    const std::string log = memory.files.Get("C:\\log.txt");
    EXPECT_THAT(log, HasSubstr("Förhandsgranskning av "));
    EXPECT_THAT(log, HasSubstr("Installationsskärmen:"));
    EXPECT_THAT(log, HasSubstr("Storlek: "));
}

TEST_F(TestModeTest, WritesTheLogsForPrograms)
{
    EXPECT_EQ(Run("/TEST /S /LOGJSON=C:\\log.txt"), ExitCode::Done);
    EXPECT_THAT(memory.files.Get("C:\\log.txt"), HasSubstr("\"action\":\"Log_Note\""));
    EXPECT_THAT(memory.files.Get("C:\\log.txt"), HasSubstr("\"result\":\"done\",\"code\":0"));
    memory.files.RemoveFile("C:\\log.txt");
    EXPECT_EQ(Run("/PREVIEW /S /RESULT=C:\\log.txt /X"), ExitCode::BadSwitch);
    EXPECT_THAT(memory.files.Get("C:\\log.txt"),
                HasSubstr("\"result\":\"bad switch\",\"code\":1639"));
    memory.files.RemoveFile("C:\\log.txt");
    memory.files.PutFolder("C:\\TEMP");
    EXPECT_EQ(Run("/TEST /S /LOG"), ExitCode::Done);
    const auto temp = memory.files.List("C:\\TEMP");
    ASSERT_EQ(temp.size(), 1U);
    EXPECT_THAT(temp[0].name, testing::StartsWith("QNSETUP-"));
}

TEST_F(TestModeTest, IsSilentWithoutATrace)
{
    EXPECT_EQ(Run("/S /PREVIEW"), ExitCode::Done);
    EXPECT_THAT(shown, IsEmpty());
    EXPECT_FALSE(memory.files.FileExists("C:\\log.txt"));
    memory.files.RemoveFile(kSetup);
    EXPECT_EQ(Run("/S /PREVIEW"), ExitCode::Failed);
}

struct FaultCase {
    const char* what;
    const char* fault;
    std::function<void(MemoryHost& memory)> spoil;
};

TEST_F(TestModeTest, TellsOfFilesThatAreMissingOrBroken)
{
    const FaultCase cases[] = {
        {"no list", "FILELIST.INF saknas eller kan inte läsas",
         [](MemoryHost& on) { on.files.RemoveFile(kList); }},
        {"a cut list", "FILELIST.INF är ofullständig",
         [](MemoryHost& on) { on.files.Put(kList, "[FileList]\r\n"); }},
        {"files of two runs", "QNSETUP.INF och FILELIST.INF hör inte ihop",
         [](MemoryHost& on) { on.files.Put(kList, GoldenFile("builder/file_list/FILELIST.INF")); }},
        {"a preview", "QNSETUP.INF är skriven för en förhandsgranskning",
         [](MemoryHost& on) {
             on.files.Put(kSetup, GoldenFile("builder/full_project/QNSETUP_preview.INF"));
         }},
    };
    for (const FaultCase& one : cases) {
        SCOPED_TRACE(one.what);
        memory.files.Put(kList, GoldenFile("builder/file_list/FILELIST_no_rows.INF"));
        one.spoil(memory);
        EXPECT_EQ(Run("/TEST",
                      {{BoxKind::Critical, "Test av Räkna",
                        "Testet kan inte visas (" + Text(one.fault) + "). Starta det på nytt."}}),
                  ExitCode::Failed);
        EXPECT_THAT(shown, IsEmpty());
    }
}

TEST_F(TestModeTest, RefusesABadSwitch)
{
    for (const Text line : {"/TEST /X", "/X /TEST"})
        EXPECT_EQ(Run(line, {{BoxKind::Critical, "Test av Räkna"}}), ExitCode::BadSwitch);
    EXPECT_EQ(Run("/S /PREVIEW /X"), ExitCode::BadSwitch);
}

TEST_F(TestModeTest, TellsOfALogThatCanNotBeWritten)
{
    memory.files.RefuseOutput("C:\\log.txt", ErrorNumber::kPermissionDenied);
    EXPECT_EQ(
        Run("/PREVIEW /LOG=C:\\log.txt", {{BoxKind::Critical, "Förhandsgranskning av Räkna"}}),
        ExitCode::Failed);
    EXPECT_THAT(shown, IsEmpty());
}

TEST_F(TestModeTest, TakesTheLanguageFileOfItsFolder)
{
    const LoadedPackage before = LoadForTest(memory.files, kFolder, TestMode::Preview);
    const Text name = before.setup.project.Language.LanguageFile;
    ASSERT_NE(name, "");
    memory.files.Put(kFolder + "\\" + name, "[Test]\r\nButton_Close=Close\r\n");
    EXPECT_EQ(Run("/PREVIEW"), ExitCode::Done);
    EXPECT_EQ(shown[0].close, "Close");
    memory.files.At(kFolder + "\\" + name).unreadable = true;
    EXPECT_EQ(Run("/PREVIEW"), ExitCode::Done);
    EXPECT_EQ(shown[0].close, "Stäng");
}

TEST_F(TestModeTest, ReadsNoLanguageFileThatIsFarTooLarge)
{
    const LoadedPackage before = LoadForTest(memory.files, kFolder, TestMode::Preview);
    const Text path = kFolder + "\\" + before.setup.project.Language.LanguageFile;
    memory.files.Put(path,
                     "[Test]\r\nButton_Close=Close\r\n" + std::string(kMaxLanguageFileSize, ' '));
    EXPECT_EQ(Run("/PREVIEW"), ExitCode::Done);
    EXPECT_EQ(shown[0].close, "Stäng");
}

} // namespace quillon
