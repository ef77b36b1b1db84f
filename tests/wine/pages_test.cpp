// The setup's pages as its user meets them: their windows and controls, found, read and pressed by
// a second program; and what is installed then.
#include "wine/driven_setup.h"
#include "wine/folder_state.h"
#include "wine/package.h"
#include "wine/page_script.h"
#include "wine/page_titles.h"
#include "wine/registry_text.h"
#include "wine/sample_product.h"
#include "wine/virtual_display.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::Not;

constexpr const char* kTitle = "Installation av Provpaket Åäö";

/// A product with every page but those that exclude each other.
SampleProduct WithAllPages()
{
    SampleProduct product;
    section::DialogBoxes& pages = product.project.DialogBoxes;
    for (Integer section::DialogBoxes::*page :
         {&section::DialogBoxes::WelcomeDlg, &section::DialogBoxes::GeneralInfoDlg,
          &section::DialogBoxes::GeneralInfoDlg2, &section::DialogBoxes::LicenseInfoDlg,
          &section::DialogBoxes::PasswordDlg, &section::DialogBoxes::NameCompanyDlg,
          &section::DialogBoxes::DestinationDlg, &section::DialogBoxes::ProgramGroupDlg,
          &section::DialogBoxes::StartInstallDlg, &section::DialogBoxes::InstallCompletedDlg})
        pages.*page = 1;
    section::DialogBoxData& data = product.project.DialogBoxData;
    data.WelcomeDlgText = "Välkommen till %PROJECTNAME.\r\nTvå rader & ett tecken.";
    data.GeneralDlgText = "Om programmet.";
    data.GeneralDlgText2 = "Mer om programmet.";
    data.LicenseTitle = "Licensavtal";
    for (int i = 1; i <= 40; ++i)
        data.LicenseText += std::to_string(i) + " §  Användaren får använda programmet.\r\n";
    data.LicenseFootText = "Godkänner du avtalet?";
    data.CorrectPassword = "Hemligt";
    data.NameCompanyExtendedInfo = kOn;
    data.DestDirShowSizeInfo = kOn;
    data.StartInstallDlgText = "Allt är klart för installationen.";
    data.InstallCompleteDlgText = "%PROJECTNAME är installerat.";
    product.project.ProgramGroup.ProgramGroup = "Provgrupp";
    product.project.ShowDocAfter.ShowCheckBox = 1;
    product.project.ShowDocAfter.DocFileName = "läsmig.txt";
    product.project.FileComponents[2].CompCanChangeDir = 1;
    product.project.Lists.INIFiles = "-- WIN.INI --\r\n[Prov]\r\nNamn=%USERNAME\r\n";
    return product;
}

class SetupPages : public testing::Test {
protected:
    /// What the driver has logged.
    std::string Drive(const Script& script, const std::string& command)
    {
        return DriveSetup(prefix, script.Text(command));
    }
    static std::string Setup(const fs::path& package, const std::string& switches = {})
    {
        return "\"" + OnZ(package / "SETUP.EXE") + "\" " + switches;
    }
    void UseNoScreen() { quillon::test::UseNoScreen(prefix); }

    const WinePrefix prefix;
};

TEST_F(SetupPages, LeadToWhatIsInstalled)
{
    UseNoScreen();
    const fs::path package = MakePackage(WithAllPages().Order({"--medium", "cd"}));
    Script script;
    script.Page("Välkommen").Read(PageField::BodyText).Next();
    script.Page("Generell information").Next();
    script.Page("Generell information 2").Back();
    script.Page("Generell information").Next().Page("Generell information 2").Next();
    script.Page("Licensavtal").Read(PageField::FootText).Next();
    script.Page("Lösenord").Type(PageField::Password, "fel").Next().Box(kCancel);
    script.Page("Lösenord").Type(PageField::Password, "Hemligt").Next();
    script.Page("Registrering").Type(PageField::UserName, "Åke Ö").Next();
    script.Page("Destinationsmapp").Read(PageField::Folder).Read(PageField::NeededSpace);
    script.Type(PageField::Folder, "nonsens").Next().Box(kCancel);
    script.Page("Destinationsmapp").Type(PageField::Folder, "C:\\Min mapp").Next();
    script.Page("Komponenter").Back();
    script.Page("Destinationsmapp").Read(PageField::Folder).Next();
    // The second component is unticked, the third one ticked and put into a folder of its own.
    const int list = IdOf(PageField::Components);
    script.Page("Komponenter").Key(list, kDown).Key(list, kSpace).Key(list, kDown);
    script.Key(list, kSpace).Await(PageField::ComponentText, "Nej tack").Read(PageField::Folder);
    script.Type(PageField::Folder, "C:\\Eget").Next();
    script.Page("Välj programgrupp").Read(PageField::Group);
    script.Type(PageField::Group, "Min grupp").Next();
    script.Page("Starta installation").Read(PageField::BodyText).Next();
    script.Page("Installationen avslutad").Read(PageField::BodyText).Next().End();
    // 64-bit Wine makes a key of its own at its first restart.
    prefix.Restart();
    const RegistryText registryBefore(prefix);
    const FolderState before = StateOf(prefix.DriveC());
    EXPECT_EQ(Drive(script, Setup(package)),
              "Välkommen till Provpaket Åäö.|Två rader & ett tecken.\n"
              "Godkänner du avtalet?\n" +
                  std::string(kTitle) +
                  ": Lösenordet är felaktigt.\n"
                  "C:\\Program Files\\Provpaket Åäö\n"
                  "7 189 kB\n" +
                  kTitle +
                  ": 'nonsens' är ingen mapp som det går att installera i. Skriv enhet och mapp, "
                  "till exempel C:\\Program Files\\Provpaket Åäö.\n"
                  "C:\\Min mapp\n"
                  "C:\\Nej tack\n"
                  "Provgrupp\n"
                  "Allt är klart för installationen.||Mapp: C:\\Min mapp|Programgrupp: Min "
                  "grupp|Komponenter: Alltid, Nej tack\n"
                  "Provpaket Åäö är installerat.\n"
                  "code 0\n");
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Min mapp\\Alltid\\Alltid.txt")));
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Eget\\Aldrig.txt")));
    EXPECT_FALSE(fs::exists(prefix.OnHost("C:\\Min mapp\\Kanske")));
    EXPECT_FALSE(fs::exists(prefix.OnHost("C:\\Program Files\\Provpaket Åäö")));
    EXPECT_THAT(ReadBytes(prefix.OnHost("C:\\windows\\win.ini")), HasSubstr("Namn=\xC5ke \xD6"));

    // What the user has chosen goes as well: every file and every value is as it was.
    EXPECT_EQ(prefix.Run("C:\\Min mapp\\QNXUNIN.EXE", "/S"), 0U);
    prefix.Restart();
    EXPECT_EQ(RegistryDifference(registryBefore, RegistryText(prefix)), "");
    EXPECT_EQ(FolderDifference(before, StateOf(prefix.DriveC())),
              "new: driven.txt\nnew: script.txt\nchanged: windows/win.ini\n");
}

TEST_F(SetupPages, ChangeNothingWhereTheUserDeclinesOrCancels)
{
    UseNoScreen();
    const fs::path package = MakePackage(WithAllPages().Order({"--medium", "cd"}));
    const FolderState before = StateOf(prefix.DriveC() / "Program Files");
    Script script;
    // Esc and the window's own button cancel like the button, and each time the user is asked.
    script.Page("Välkommen").Key(kNext, kEscape).Box(kNo);
    script.Page("Välkommen").Close().Box(kNo);
    script.Page("Välkommen").Press(kCancel).Box(kNo);
    script.Page("Välkommen").Key(kNext, kEnter);
    script.Page("Generell information").Next().Page("Generell information 2").Next();
    script.Page("Licensavtal").Key(IdOf(PageField::Agreement), kEnter);
    script.Page("Lösenord").Back();
    script.Page("Licensavtal").Press(kCancel).Box(kYes).End();
    const std::string question = std::string(kTitle) + ": Vill du avbryta installationen?\n";
    EXPECT_EQ(Drive(script, Setup(package)),
              question + question + question + question + "code 1602\n");
    EXPECT_EQ(FolderDifference(before, StateOf(prefix.DriveC() / "Program Files")), "");
}

TEST_F(SetupPages, HaveControlsInTheOrderOfTheTabKeyWithTheirLabelsBefore)
{
    UseNoScreen();
    const fs::path package = MakePackage(WithAllPages().Order({"--medium", "cd"}));
    Script script;
    script.Page("Välkommen").Next().Page("Generell information").Next();
    script.Page("Generell information 2").Next().Page("Licensavtal").Next();
    script.Page("Lösenord").Controls().Type(PageField::Password, "Hemligt").Next();
    script.Page("Registrering").Next();
    script.Page("Destinationsmapp").Controls().Press(kCancel).Box(kYes).End();
    const std::string log = Drive(script, Setup(package));
    EXPECT_THAT(log, HasSubstr("Static -1 Lösenord\n"
                               "Static 101 Skriv in korrekt lösenord. Det krävs för att programmet "
                               "ska kunna installeras.\n"
                               "Static -1 &Lösenord:\n"
                               "Edit 104 tab \n"
                               "Static -1 \n"
                               "Button 3 tab < &Bakåt\n"
                               "Button 1 tab &Nästa >\n"
                               "Button 2 tab Avbryt\n"));
    EXPECT_THAT(log, HasSubstr("Static -1 &Mapp:\n"
                               "Edit 111 tab C:\\Program Files\\Provpaket Åäö\n"
                               "Button 112 tab B&läddra...\n"));
    EXPECT_THAT(log, HasSubstr("Button 120 tab &Diskutrymme...\n"));
}

TEST_F(SetupPages, AreNotShownUnderTheSilentSwitch)
{
    const fs::path package = MakePackage(WithAllPages().Order({"--medium", "cd"}));
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S /PASSWORD=Hemligt"), 0U);
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Program Files\\Provpaket Åäö\\Kanske\\Kanske.txt")));
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 1603U);
}

/// The program and the files of a test run, as the tool lays them side by side.
fs::path MakeTestRun(SampleProduct& product, const std::string& name)
{
    const PackageOrder order = product.Order({});
    const fs::path folder = WorkFolder() / name;
    const fs::path quillonc = fs::path(QUILLON_BUILD_FOLDER) / "quillon" / "quillonc";
    const ProgramResult written =
        RunProgram({quillonc, "test", order.project, "--to", folder},
                   {{"QUILLON_DRIVES", "S=" + order.drive.string()},
                    {"QUILLON_DRIVE_C", WorkFolder() / "drive-of-the-tool"}});
    EXPECT_EQ(written.exitCode, 0) << written.output;
    fs::copy_file(RuntimeFolder() / "Small32" / "QNS32X.EXE", folder / "Qns32x.exe");
    return folder;
}

TEST_F(SetupPages, OfATestInstallNothing)
{
    UseNoScreen();
    SampleProduct product;
    product.project.DialogBoxes.LicenseInfoRtfDlg = 1;
    product.project.DialogBoxData.LicenseFilenameRtf = "S:\\avtal.rtf";
    WriteBytes(product.Drive() / "avtal.rtf", R"({\rtf1\ansi Det h\'e4r \'e4r {\b avtalet}.})");
    product.project.DialogBoxes.DestinationDlg = 0;
    product.project.DialogBoxes.DestinationDriveDlg = 1;
    const fs::path folder = MakeTestRun(product, "provkörning");
    const FolderState before = StateOf(prefix.DriveC() / "Program Files");
    Script script;
    script.Page("Välkommen").Next();
    script.Page("Licensinformation").Read(PageField::Agreement).Next();
    script.Page("Enhet").Next().Page("Komponenter").Next().Box(kCancel);
    script.Page("Installationen avslutad").Press(kNext).End();
    EXPECT_EQ(Drive(script, "\"" + OnZ(folder / "Qns32x.exe") + "\" /TEST"),
              "Det här är avtalet.\n"
              "Test av Provpaket Åäö: Det här är ett test. Ingenting installeras.\ncode 0\n");
    EXPECT_EQ(FolderDifference(before, StateOf(prefix.DriveC() / "Program Files")), "");
}

TEST_F(SetupPages, HaveAScreenBehindThemThatIsPreviewedUntilEsc)
{
    const VirtualDisplay display;
    SampleProduct product;
    product.project.DesTitle.TitleText = "%PROJECTNAME";
    product.project.DesTextBox.BoxText = "Läs det här.";
    const fs::path folder = MakeTestRun(product, "förhandsgranskning");
    const fs::path shot = WorkFolder() / "skärm.bmp";
    Script script;
    script.Screen().Shoot(shot).Escape().End();
    EXPECT_EQ(Drive(script, "\"" + OnZ(folder / "Qns32x.exe") + "\" /PREVIEW"), "code 0\n");
    const fs::path png = fs::path(QUILLON_BUILD_FOLDER) / "screens" / "setup" /
                         (std::to_string(WineBits()) + "-screen.png");
    BitmapToPng(shot, png);
    // The blend from blue to black, from one side of the display to the other.
    const std::string bytes = ReadBytes(shot);
    ASSERT_EQ(bytes.size(), 54U + 4U * 1024U * 768U);
    const auto blueOf = [&](std::size_t x, std::size_t y) {
        return static_cast<unsigned char>(bytes[54 + 4 * ((767 - y) * 1024 + x)]);
    };
    const auto [least, most] =
        std::minmax({blueOf(2, 2), blueOf(1021, 2), blueOf(2, 765), blueOf(1021, 765)});
    EXPECT_GT(most, 200);
    EXPECT_LT(least, 100);
}

TEST_F(SetupPages, GiveWayToProgressAloneWherePassive)
{
    UseNoScreen();
    const fs::path package = MakePackage(WithAllPages().Order({"--medium", "cd"}));
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"),
                         "-passive /PASSWORD=Hemligt INSTALLDIR=C:\\Annan "
                         "/COMPONENTS=\"Nej tack\""),
              0U);
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Nej tack\\Aldrig.txt")));
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Annan\\Alltid\\Alltid.txt")));
    EXPECT_FALSE(fs::exists(prefix.OnHost("C:\\Annan\\Kanske")));
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "-s /okänd"), 1639U);
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/qn /COMPONENTS=Annat"), 1639U);
}

TEST_F(SetupPages, AreThoseOfOneSetupAtATime)
{
    UseNoScreen();
    const fs::path package = MakePackage(WithAllPages().Order({"--medium", "cd"}));
    Script script;
    script.Page("Välkommen").Run(Setup(package, "/S /PASSWORD=Hemligt"));
    script.Press(kCancel).Box(kYes).End();
    EXPECT_EQ(Drive(script, Setup(package)), "code 1618\n" + std::string(kTitle) +
                                                 ": Vill du avbryta installationen?\ncode 1602\n");
}

// Pictures to look at: each page as Wine paints it, in build/<preset>/screens/setup, in each
// language. The programs that packages carry show them all; the 64-bit ones show the Swedish ones.
class SetupPictures : public SetupPages, public testing::WithParamInterface<const char*> {
protected:
    void SetUp() override { fs::create_directories(shots_); }

    void Picture(Script& script, const std::string& title)
    {
        Picture(script.Page(title).Clipped());
    }
    void Picture(Script& script) { script.Shoot(Shot(++count_)); }
    void KeepPictures(const std::string& kind) const
    {
        for (int i = 1; i <= count_; ++i) {
            const fs::path png = fs::path(QUILLON_BUILD_FOLDER) / "screens" / "setup" /
                                 (GetParam() + ("-" + std::to_string(WineBits()) + "-" + kind) +
                                  std::to_string(i) + ".png");
            BitmapToPng(Shot(i), png);
            EXPECT_GT(fs::file_size(png), 4000U) << "nothing was painted";
        }
    }

private:
    fs::path Shot(int number) const { return shots_ / (std::to_string(number) + ".bmp"); }

    const fs::path shots_ = WorkFolder() / (std::string("bilder-") + GetParam());
    int count_ = 0;
};

TEST_P(SetupPictures, AreTakenOfEveryPage)
{
    const std::string language = GetParam();
    if (WineBits() == 64 && language != "SWEDISH")
        GTEST_SKIP() << "the 32-bit programs show the other languages";
    const VirtualDisplay display;
    SampleProduct product = WithAllPages();
    product.project.DesTitle.TitleText = "%PROJECTNAME";
    product.project.DesSubTitle.SubTitleText = "%USERNAME, %DESTDIR";
    product.project.Language.LanguageFile = language + ".LNG";
    const LanguageTexts texts = TextsOf(language);
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    Script script;
    for (const PageKind kind :
         {PageKind::Welcome, PageKind::GeneralInfo, PageKind::GeneralInfo2, PageKind::LicenseInfo,
          PageKind::Password, PageKind::NameCompany, PageKind::Destination, PageKind::Components,
          PageKind::ProgramGroup, PageKind::StartInstall, PageKind::InstallCompleted}) {
        Picture(script, TitleOf(product, kind, texts));
        if (kind == PageKind::Password)
            script.Type(PageField::Password, "Hemligt");
        if (kind == PageKind::NameCompany)
            script.Type(PageField::UserName, "Ulla Ek");
        // The screen with the page in front of it.
        if (kind == PageKind::Destination) {
            Picture(script.Screen());
            script.Page(TitleOf(product, kind, texts));
        }
        script.Next();
    }
    script.End();
    EXPECT_EQ(Drive(script, Setup(package)), "code 0\n");
    KeepPictures("");
}

// The two pages that exclude others, in a test run.
TEST_P(SetupPictures, AreTakenOfThePagesInThePlaceOfOthers)
{
    const std::string language = GetParam();
    if (WineBits() == 64 && language != "SWEDISH")
        GTEST_SKIP() << "the 32-bit programs show the other languages";
    const VirtualDisplay display;
    SampleProduct product;
    product.project.DialogBoxes.WelcomeDlg = 0;
    product.project.DialogBoxes.LicenseInfoRtfDlg = 1;
    product.project.DialogBoxes.DestinationDlg = 0;
    product.project.DialogBoxes.DestinationDriveDlg = 1;
    product.project.DialogBoxData.LicenseFilenameRtf = "S:\\avtal.rtf";
    product.project.DialogBoxData.DestDriveShowSizeInfo = kOn;
    product.project.Language.LanguageFile = language + ".LNG";
    WriteBytes(
        product.Drive() / "avtal.rtf",
        R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}\f0\fs28\b Avtal\b0\par\fs20 Det h\'e4r g\'e4ller.})");
    const fs::path folder = MakeTestRun(product, "provkörning-" + language);
    const LanguageTexts texts = TextsOf(language);
    Script script;
    Picture(script, TitleOf(product, PageKind::LicenseInfoRtf, texts));
    script.Margin(PageField::Agreement).Next();
    Picture(script, TitleOf(product, PageKind::DestinationDrive, texts));
    script.Press(kCancel).Box(kYes).End();
    EXPECT_THAT(Drive(script, "\"" + OnZ(folder / "Qns32x.exe") + "\" /TEST"),
                AllOf(testing::StartsWith("margin\n"), testing::EndsWith("code 0\n"),
                      Not(HasSubstr("clipped"))));
    KeepPictures("other-");
}

INSTANTIATE_TEST_SUITE_P(Languages, SetupPictures,
                         testing::Values("SWEDISH", "DANISH", "ENGLISH", "FINNISH", "GERMAN",
                                         "NORWEGIAN"),
                         [](const auto& language) { return std::string(language.param); });

} // namespace
} // namespace quillon::test
