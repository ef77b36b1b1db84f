// The pages of a setup without a mouse: access keys, Tab, Enter and Esc as they come from the
// keyboard.
#include "wine/driven_setup.h"
#include "wine/package.h"
#include "wine/page_script.h"
#include "wine/page_titles.h"
#include "wine/sample_product.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kQuestion =
    "Installation av Provpaket Åäö: Vill du avbryta installationen?\n";

/// The lines of the log for Tab, with these controls one after the other.
std::string Order(const std::vector<int>& ids)
{
    std::string lines;
    for (const int id : ids)
        lines += "tab " + std::to_string(id) + "\n";
    return lines;
}

class Keyboard : public testing::Test {
protected:
    Keyboard()
    {
        UseNoScreen(prefix);
        section::DialogBoxes& pages = product.project.DialogBoxes;
        pages.LicenseInfoDlg = pages.PasswordDlg = pages.NameCompanyDlg = 1;
        pages.ProgramGroupDlg = pages.StartInstallDlg = 1;
        section::DialogBoxData& data = product.project.DialogBoxData;
        data.LicenseTitle = "Licensavtal";
        for (int i = 1; i <= 40; ++i)
            data.LicenseText += std::to_string(i) + " §  Användaren får använda programmet.\r\n";
        data.CorrectPassword = "Hemligt";
        data.DestDirShowSizeInfo = kOn;
        data.StartInstallDlgText = "Allt är klart.";
    }
    std::string Drive(const Script& script)
    {
        const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
        return DriveSetup(prefix, script.Text("\"" + OnZ(package / "SETUP.EXE") + "\""));
    }

    SampleProduct product;
    const WinePrefix prefix;
};

TEST_F(Keyboard, LeadsThroughEveryPage)
{
    const int paper = IdOf(PageField::Agreement);
    const int folder = IdOf(PageField::Folder);
    const int browse = IdOf(PageField::Browse);
    const int space = IdOf(PageField::SpaceBox);
    Script script;
    // Esc asks from wherever the focus is, and No stays.
    script.Page("Välkommen").Focus(kNext).Tap(kEscape).Box(kNo);
    script.Page("Välkommen").Focus(kNext).Tabs(2).Alt('N');
    script.Page("Licensavtal").Focus(kNext).Tabs(4).Alt('B');
    script.Page("Välkommen").Focus(kNext).Tap(kEnter);
    script.Page("Licensavtal").Focus(kNext).Tabs(2).Tap(kEscape).Box(kNo);
    script.Page("Licensavtal").Focus(kNext).Tabs(2).Tap(kEnter);
    script.Page("Lösenord").Focus(PageField::Password).Tabs(4);
    script.Type(PageField::Password, "Hemligt").Tap(kEnter);
    script.Page("Registrering").Focus(PageField::UserName).Alt('B');
    script.Page("Lösenord").Type(PageField::Password, "Hemligt").Focus(PageField::Password);
    script.Alt('N').Page("Registrering").Focus(PageField::UserName).Tabs(5).Tap(kEnter);
    // A label's letter leads to the field that it names.
    script.Page("Destinationsmapp").Focus(kNext).Alt('M').Focus(PageField::Folder);
    script.Tabs(6).Tap(kEnter);
    script.Page("Komponenter").Focus(PageField::Components).Alt('N');
    script.Page("Välj programgrupp").Focus(PageField::Group).Tap(kEnter);
    script.Page("Starta installation").Focus(kNext).Alt('B');
    script.Page("Välj programgrupp").Focus(PageField::Group).Alt('N');
    script.Page("Starta installation").Focus(kNext).Tap(kEnter);
    script.Page("Installationen avslutad").Focus(kNext).Tap(kEnter).End();
    EXPECT_EQ(Drive(script),
              kQuestion + Order({kCancel, kNext}) + Order({kCancel, paper, kBack, kNext}) +
                  Order({kCancel, paper}) + kQuestion + Order({kCancel, paper}) +
                  Order({kBack, kNext, kCancel, IdOf(PageField::Password)}) +
                  Order({IdOf(PageField::UserCompany), kBack, kNext, kCancel,
                         IdOf(PageField::UserName)}) +
                  Order({browse, space, kBack, kNext, kCancel, folder}) + "code 0\n");
}

// An agreement that keeps its own keys would hold the user there.
TEST_F(Keyboard, LeadsThroughThePagesInThePlaceOfOthers)
{
    WriteBytes(product.Drive() / "avtal.rtf",
               R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}\f0\fs20 Det h\'e4r g\'e4ller.})");
    product.project.DialogBoxes = {.WelcomeDlg = 0,
                                   .GeneralInfoDlg = 1,
                                   .GeneralInfoDlg2 = 1,
                                   .LicenseInfoRtfDlg = 1,
                                   .DestinationDlg = 0,
                                   .DestinationDriveDlg = 1,
                                   .InstallCompletedDlg = 1};
    section::DialogBoxData& data = product.project.DialogBoxData;
    data.GeneralDlgText = "Om programmet.";
    data.GeneralDlgText2 = "Mer om programmet.";
    data.LicenseFilenameRtf = "S:\\avtal.rtf";
    data.LicenseTitleRtf = "Avtalet";
    const std::string drive = TitleOf(product, PageKind::DestinationDrive, TextsOf("SWEDISH"));
    const int paper = IdOf(PageField::Agreement);
    Script script;
    script.Page("Generell information").Focus(kNext).Tap(kEnter);
    script.Page("Generell information 2").Focus(kNext).Alt('B');
    script.Page("Generell information").Focus(kNext).Alt('N');
    script.Page("Generell information 2").Focus(kNext).Tabs(3).Tap(kEnter);
    script.Page("Avtalet").Focus(kNext).Tabs(2).Tap(kEscape).Box(kNo);
    script.Page("Avtalet").Focus(kNext).Tabs(4).Alt('B');
    script.Page("Generell information 2").Focus(kNext).Tap(kEnter);
    script.Page("Avtalet").Focus(kNext).Tabs(2).Tap(kEnter);
    script.Page(drive).Focus(PageField::Drives).Tabs(5).Tap(kEnter);
    script.Page("Komponenter").Focus(PageField::Components).Tap(kEnter);
    script.Page("Installationen avslutad").Focus(kNext).Tap(kEnter).End();
    EXPECT_EQ(Drive(script), Order({kCancel, kBack, kNext}) + Order({kCancel, paper}) + kQuestion +
                                 Order({kCancel, paper, kBack, kNext}) + Order({kCancel, paper}) +
                                 Order({IdOf(PageField::SpaceBox), kBack, kNext, kCancel,
                                        IdOf(PageField::Drives)}) +
                                 "code 0\n");
}

/// Alt and the letter that a caption underlines.
char LetterOf(const std::string& caption)
{
    const std::size_t mark = caption.find('&');
    return mark == std::string::npos ? '\0' : UpperCase(caption.substr(mark + 1, 1)).at(0);
}

class KeyboardIn : public Keyboard, public testing::WithParamInterface<const char*> {};

TEST_P(KeyboardIn, TakesTheLettersOfItsLanguage)
{
    product.project.Language.LanguageFile = GetParam() + std::string(".LNG");
    const LanguageTexts texts = TextsOf(GetParam());
    const char back = LetterOf(texts[Message::Back]);
    const char next = LetterOf(texts[Message::Next]);
    const std::string agreement = TitleOf(product, PageKind::LicenseInfo, texts);
    Script script;
    script.Page(TitleOf(product, PageKind::Welcome, texts)).Focus(kNext).Alt(next);
    script.Page(agreement).Focus(kNext).Alt(LetterOf(texts[Message::Accept]));
    script.Page(TitleOf(product, PageKind::Password, texts)).Focus(PageField::Password).Alt(back);
    script.Page(agreement).Focus(kNext).Alt(LetterOf(texts[Message::Decline])).Box(kYes).End();
    EXPECT_TRUE(Drive(script).ends_with("code 1602\n"));
}

INSTANTIATE_TEST_SUITE_P(Languages, KeyboardIn,
                         testing::Values("SWEDISH", "ENGLISH", "GERMAN", "DANISH", "NORWEGIAN",
                                         "FINNISH"),
                         [](const auto& language) { return std::string(language.param); });

} // namespace
} // namespace quillon::test
