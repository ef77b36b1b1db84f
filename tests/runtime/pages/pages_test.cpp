// The pages of the setup by their rules, without any window.
#include "runtime/pages/earlier_version.h"
#include "runtime/pages/page_chain.h"
#include "runtime/pages/page_order.h"
#include "runtime/support/memory_target.h"
#include "runtime/support/scripted_pages.h"
#include "runtime/uninstall_entry_key.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Step = ScriptedPages::Step;

constexpr const char* kTitle = "Installation av Exempel";
constexpr std::uint64_t kMegabyte = 1024 * 1024;

class PagesTest : public testing::Test {
protected:
    PagesTest()
    {
        project.ProjectName.ProjectName = "Exempel";
        project.ProgramGroup.ProgramGroup = "%PROJECTNAME-grupp";
        project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\Exempel";
        project.DialogBoxes = {};
        for (const auto page :
             {&section::DialogBoxes::WelcomeDlg, &section::DialogBoxes::DestinationDlg,
              &section::DialogBoxes::InstallCompletedDlg})
            project.DialogBoxes.*page = 0;
        memory.files.PutFolder("C:\\Program");
        memory.files.PutFolder("C:\\Ulla\\Start-meny\\Program\\Spel");
        memory.files.PutFolder("C:\\Ulla\\Start-meny\\Program\\Tillbehör");
    }

    void AddRow(const Text& component, std::uint64_t size)
    {
        InstallRow row;
        row.number = int(rows.size()) + 1;
        row.name = "a";
        row.destination = "%DESTDIR";
        row.component = component;
        row.size = size;
        rows.push_back(row);
    }

    section::FileComponent& UseComponent(int number, const Text& name)
    {
        setup.UseComponents = kOn;
        auto& component = project.FileComponents[std::size_t(number) - 1];
        component.Comp = 1;
        component.CompName = name;
        return component;
    }

    /// Of a user who has chosen nothing yet.
    PageInput Input()
    {
        used = setup;
        return {memory.host, target, ask, texts, used, rows, "D:\\Paket"};
    }

    /// Leads a new user through, who does these steps.
    PageChain::End Lead(std::deque<Step> steps)
    {
        ScriptedPages pages(std::move(steps));
        PageChain chain(Input());
        const PageChain::End end = chain.ShowPages(pages);
        choices = chain.Choices();
        shown = pages.shown;
        stepsAside = pages.stepsAside;
        variables = pages.variables;
        return end;
    }

    MemoryHost memory;
    MemoryTarget target{&memory.files};
    ScriptedAsk ask;
    LanguageTexts texts;
    SetupInformation setup;
    SetupInformation used;
    Project& project = setup.project;
    std::vector<InstallRow> rows;
    UserChoices choices;
    std::vector<SetupPage> shown;
    int stepsAside = 0;
    std::vector<SetupVariables> variables;
};

TEST_F(PagesTest, ComeInTheOrderOfTheProject)
{
    section::DialogBoxes& pages = project.DialogBoxes;
    for (auto page :
         {&pages.WelcomeDlg, &pages.GeneralInfoDlg, &pages.GeneralInfoDlg2, &pages.LicenseInfoDlg,
          &pages.PasswordDlg, &pages.NameCompanyDlg, &pages.DestinationDlg, &pages.ProgramGroupDlg,
          &pages.StartInstallDlg, &pages.InstallCompletedDlg})
        *page = 1;
    UseComponent(2, "Exempel");
    EXPECT_THAT(PagesOf(setup),
                ElementsAre(PageKind::Welcome, PageKind::GeneralInfo, PageKind::GeneralInfo2,
                            PageKind::LicenseInfo, PageKind::Password, PageKind::NameCompany,
                            PageKind::Destination, PageKind::Components, PageKind::ProgramGroup,
                            PageKind::StartInstall, PageKind::InstallCompleted));
    pages = {};
    pages.WelcomeDlg = pages.DestinationDlg = pages.InstallCompletedDlg = 0;
    pages.LicenseInfoRtfDlg = pages.DestinationDriveDlg = 1;
    setup.UseComponents = kOff;
    EXPECT_THAT(PagesOf(setup), ElementsAre(PageKind::LicenseInfoRtf, PageKind::DestinationDrive));
}

TEST_F(PagesTest, AskForComponentsOnlyWhereThereIsAChoice)
{
    UseComponent(1, "Alltid").CompMustAlwaysBeInstalled = 1;
    EXPECT_THAT(PagesOf(setup), IsEmpty());
    project.FileComponents[0].CompCanChangeDir = 1;
    EXPECT_THAT(PagesOf(setup), ElementsAre(PageKind::Components));
    project.FileComponents[0].CompCanChangeDir = 0;
    UseComponent(9, "Valfri");
    EXPECT_THAT(PagesOf(setup), ElementsAre(PageKind::Components));
}

TEST_F(PagesTest, WithoutAnyTheInstallationBeginsAtOnce)
{
    EXPECT_EQ(Lead({}), PageChain::End::Install);
    EXPECT_THAT(shown, IsEmpty());
}

TEST_F(PagesTest, ExpandVariablesInTheirTextsWhereTheProjectWantsThat)
{
    project.DialogBoxes.WelcomeDlg = 1;
    project.DialogBoxData.WelcomeDlgTitle = "Till %PROJECTNAME";
    project.DialogBoxData.WelcomeDlgText = "Läggs i %DESTDIR.";
    EXPECT_EQ(Lead({{PageKind::Welcome}}), PageChain::End::Install);
    EXPECT_EQ(shown[0].title, "Till Exempel");
    EXPECT_EQ(shown[0].windowTitle, "Till Exempel");
    EXPECT_EQ(shown[0].Find(PageField::BodyText)->text, "Läggs i C:\\Program\\Exempel.");
    EXPECT_FALSE(shown[0].canGoBack);

    project.InstallOptions.ExpandVariablesInDialogBoxes = "0";
    project.DialogBoxData.WelcomeDlgTitle = "";
    EXPECT_EQ(Lead({{PageKind::Welcome}}), PageChain::End::Install);
    EXPECT_EQ(shown[0].title, "");
    EXPECT_EQ(shown[0].windowTitle, kTitle);
    EXPECT_EQ(shown[0].Find(PageField::BodyText)->text, "Läggs i %DESTDIR.");
}

TEST_F(PagesTest, HandOnWhatTheVariablesStandForByThen)
{
    project.DialogBoxes.WelcomeDlg = project.DialogBoxes.NameCompanyDlg = 1;
    project.DialogBoxes.DestinationDlg = project.DialogBoxes.ProgramGroupDlg = 1;
    project.LicenseData.UserName = "Ada";
    Lead({{PageKind::Welcome},
          {PageKind::NameCompany, PageAction::Next,
           [](SetupPage& page, const PageListener& listener) {
               Typing(PageField::UserName, "Ulla")(page, listener);
               Typing(PageField::UserCompany, "Firma AB")(page, listener);
           }},
          {PageKind::Destination, PageAction::Next, Typing(PageField::Folder, "D:\\Annan")},
          {PageKind::ProgramGroup, PageAction::Next, Typing(PageField::Group, "Min grupp")}});
    ASSERT_EQ(variables.size(), 5U);
    EXPECT_EQ(variables[1].Expand("%USERNAME"), "Ada");
    EXPECT_EQ(variables[2].Expand("%USERNAME, %USERCOMPANY"), "Ulla, Firma AB");
    EXPECT_EQ(variables[3].Expand("%DESTDIR"), "D:\\Annan");
    EXPECT_EQ(variables[4].Expand("%PROGRAMGROUP"), "Min grupp");
}

TEST_F(PagesTest, TakeTheirOwnPictureOrTheSharedOne)
{
    project.DialogBoxes.WelcomeDlg = project.DialogBoxes.GeneralInfoDlg = 1;
    project.DialogBoxes.DlgBitmap = "alla.bmp";
    project.DialogBoxData.GeneralDlgBitmap = "egen.bmp";
    Lead({{PageKind::Welcome}, {PageKind::GeneralInfo}});
    EXPECT_EQ(shown[0].bitmap, "alla.bmp");
    EXPECT_EQ(shown[1].bitmap, "egen.bmp");
}

TEST_F(PagesTest, CancelAsksOnceAndStaysWhereTheAnswerIsNo)
{
    project.DialogBoxes.WelcomeDlg = 1;
    ask.Expect({BoxKind::YesNo, kTitle, "Vill du avbryta installationen?", Answer::No});
    ask.Expect({BoxKind::YesNo, kTitle, "Vill du avbryta installationen?", Answer::Yes});
    EXPECT_EQ(
        Lead({{PageKind::Welcome, PageAction::Cancel}, {PageKind::Welcome, PageAction::Cancel}}),
        PageChain::End::Cancelled);
    EXPECT_EQ(stepsAside, 0);
}

TEST_F(PagesTest, BackAndNextKeepWhatWasTyped)
{
    project.DialogBoxes.NameCompanyDlg = project.DialogBoxes.DestinationDlg =
        project.DialogBoxes.ProgramGroupDlg = 1;
    EXPECT_EQ(
        Lead({{PageKind::NameCompany, PageAction::Next, Typing(PageField::UserName, "Åke")},
              {PageKind::Destination, PageAction::Next, Typing(PageField::Folder, "E:\\Annan\\")},
              {PageKind::ProgramGroup, PageAction::Back, Typing(PageField::Group, "Min grupp")},
              {PageKind::Destination, PageAction::Back},
              {PageKind::NameCompany, PageAction::Next},
              {PageKind::Destination},
              {PageKind::ProgramGroup}}),
        PageChain::End::Install);
    EXPECT_EQ(shown[4].Find(PageField::UserName)->text, "Åke");
    EXPECT_EQ(shown[5].Find(PageField::Folder)->text, "E:\\Annan");
    EXPECT_EQ(shown[6].Find(PageField::Group)->text, "Min grupp");
    EXPECT_EQ(choices.destination, "E:\\Annan");
    EXPECT_EQ(choices.programGroup, "Min grupp");
    EXPECT_EQ(choices.user->UserName, "Åke");
    EXPECT_EQ(stepsAside, 1);
}

TEST_F(PagesTest, KeepWhatWasTypedWhereCancelIsTakenBack)
{
    project.DialogBoxes.ProgramGroupDlg = 1;
    ask.Expect({BoxKind::YesNo, kTitle, {}, Answer::No});
    Lead({{PageKind::ProgramGroup, PageAction::Cancel, Typing(PageField::Group, "Halv")},
          {PageKind::ProgramGroup}});
    EXPECT_EQ(shown[1].Find(PageField::Group)->text, "Halv");
}

TEST_F(PagesTest, AnAgreementIsAcceptedOrDeclined)
{
    project.DialogBoxes.LicenseInfoDlg = 1;
    project.DialogBoxData.LicenseTitle = "Avtal";
    project.DialogBoxData.LicenseText = "Rad ett\r\nRad två";
    project.DialogBoxData.LicenseFootText = "Godkänner du?";
    ask.Expect({BoxKind::YesNo, kTitle});
    EXPECT_EQ(Lead({{PageKind::LicenseInfo, PageAction::Cancel}}), PageChain::End::Cancelled);
    EXPECT_EQ(shown[0].buttons, PageButtons::BackYesNo);
    EXPECT_EQ(shown[0].Find(PageField::Agreement)->text, "Rad ett\r\nRad två");
    EXPECT_EQ(shown[0].Find(PageField::FootText)->text, "Godkänner du?");
}

TEST_F(PagesTest, AnAgreementInRtfIsTheFileOfThePackage)
{
    project.DialogBoxes.LicenseInfoRtfDlg = 1;
    memory.files.Put("D:\\Paket\\LICENSE.RTF", "{\\rtf1 Hej}");
    Lead({{PageKind::LicenseInfoRtf}});
    EXPECT_EQ(shown[0].Find(PageField::Agreement)->kind, PieceKind::RichPaper);
    EXPECT_EQ(shown[0].Find(PageField::Agreement)->text, "{\\rtf1 Hej}");
    EXPECT_EQ(shown[0].Find(PageField::FootText), nullptr);
}

TEST_F(PagesTest, APasswordHasToBeTheRightOne)
{
    project.DialogBoxes.PasswordDlg = 1;
    project.DialogBoxData.CorrectPassword = "Hemligt";
    project.DialogBoxData.PasswordDialogText = "Skriv.\r\nAndra raden";
    ask.Expect({BoxKind::Critical, kTitle, "Lösenordet är felaktigt."});
    ask.Expect({BoxKind::Critical, kTitle, "Lösenordet är felaktigt."});
    EXPECT_EQ(
        Lead({{PageKind::Password},
              {PageKind::Password, PageAction::Next, Typing(PageField::Password, "hemligt")},
              {PageKind::Password, PageAction::Next, Typing(PageField::Password, "Hemligt")}}),
        PageChain::End::Install);
    EXPECT_EQ(shown[0].Find(PageField::BodyText)->text, "Skriv.");
    EXPECT_EQ(shown[2].Find(PageField::Password)->text, "") << "a wrong one is not kept";
    EXPECT_EQ(shown[0].Find(PageField::Password)->kind, PieceKind::Password);
}

TEST_F(PagesTest, AskForNoPasswordThatIsGivenOrThatThereIsNot)
{
    project.DialogBoxes.PasswordDlg = 1;
    EXPECT_EQ(Lead({}), PageChain::End::Install);
    project.DialogBoxData.CorrectPassword = "Hemligt";
    ScriptedPages none;
    PageInput input = Input();
    input.hasPassword = true;
    EXPECT_EQ(PageChain(input).ShowPages(none), PageChain::End::Install);
}

TEST_F(PagesTest, TheUserIsProposedAsTheMachineKnowsIt)
{
    project.DialogBoxes.NameCompanyDlg = 1;
    project.LicenseData.UserName = "Kund";
    project.LicenseData.UserCompany = "Kund AB";
    Lead({{PageKind::NameCompany}});
    EXPECT_EQ(shown[0].Find(PageField::UserName)->text, "Kund");
    EXPECT_EQ(shown[0].Find(PageField::UserAddress), nullptr);
    EXPECT_EQ(shown[0].Find(PageField::BodyText)->text, "Skriv in ditt namn och företag.");

    project.DialogBoxData.GetNameCompanyFromRegistry = kOn;
    project.DialogBoxData.NameCompanyExtendedInfo = kOn;
    memory.machine.owner.organization = "";
    Lead({{PageKind::NameCompany, PageAction::Next, Typing(PageField::UserName, "")}});
    EXPECT_EQ(shown[0].Find(PageField::UserName)->text, "Ulla Ek");
    EXPECT_EQ(shown[0].Find(PageField::UserCompany)->text, "Kund AB");
    EXPECT_NE(shown[0].Find(PageField::UserEmail), nullptr);
    EXPECT_EQ(shown[0].Find(PageField::BodyText)->text,
              "Skriv in ditt namn, företag och adressuppgifter.");
    // What the user has emptied stays empty.
    ApplyChoices(choices, setup);
    EXPECT_EQ(MakeSetupVariables({setup, memory.host, target, {}, {}}).Value("%USERNAME"), "");
}

struct FolderCase {
    const char* typed;
    const char* shown; // in the message
};

class BadFolders : public PagesTest, public testing::WithParamInterface<FolderCase> {};

TEST_P(BadFolders, AreRefusedAndShownAgain)
{
    project.DialogBoxes.DestinationDlg = 1;
    ask.Expect({BoxKind::Critical, kTitle,
                "'" + Text(GetParam().shown) +
                    "' är ingen mapp som det går att installera i. Skriv enhet och mapp, till "
                    "exempel C:\\Program\\Exempel."});
    EXPECT_EQ(
        Lead(
            {{PageKind::Destination, PageAction::Next, Typing(PageField::Folder, GetParam().typed)},
             {PageKind::Destination, PageAction::Next, Typing(PageField::Folder, "C:\\Bra")}}),
        PageChain::End::Install);
    EXPECT_EQ(shown[1].Find(PageField::Folder)->text, GetParam().shown);
    EXPECT_EQ(choices.destination, "C:\\Bra");
}

INSTANTIATE_TEST_SUITE_P(
    , BadFolders,
    testing::Values(FolderCase{"Exempel", "Exempel"}, FolderCase{"\\Exempel", "\\Exempel"},
                    FolderCase{"C:Exempel", "C:Exempel"}, FolderCase{"C:\\a*b", "C:\\a*b"},
                    FolderCase{"C:\\a\\CON", "C:\\a\\CON"}, FolderCase{"C:\\x:y", "C:\\x:y"}));

TEST_F(PagesTest, AFolderMayBeChosenInATree)
{
    project.DialogBoxes.DestinationDlg = 1;
    ask.choices = {{{"E:\\Vald"}}, {}};
    Lead({{PageKind::Destination, PageAction::Next,
           [](SetupPage& page, const PageListener& listener) {
               listener(page, PageField::Browse);
               EXPECT_EQ(page.Find(PageField::Folder)->text, "E:\\Vald");
               listener(page, PageField::Browse);
               EXPECT_EQ(page.Find(PageField::Folder)->text, "E:\\Vald");
           }}});
    EXPECT_EQ(ask.questions[0].title, "Välj mapp för installationen.");
    EXPECT_EQ(ask.questions[0].folder, "C:\\Program\\Exempel");
    EXPECT_EQ(choices.destination, "E:\\Vald");
}

TEST_F(PagesTest, WarnOfAFolderThatExistsWhereTheProjectWantsThat)
{
    project.DialogBoxes.DestinationDlg = 1;
    memory.files.PutFolder("C:\\Program\\Exempel");
    EXPECT_EQ(Lead({{PageKind::Destination}}), PageChain::End::Install);
    project.DialogBoxData.WarnIfDestDirExists = kOn;
    const Text text = "Mappen 'C:\\Program\\Exempel' finns redan. Vill du installera i den ändå?";
    ask.Expect({BoxKind::YesNo, kTitle, text, Answer::No});
    ask.Expect({BoxKind::YesNo, kTitle, text, Answer::Yes});
    project.DialogBoxes.ProgramGroupDlg = 1;
    // Who has said yes once is not asked again.
    EXPECT_EQ(Lead({{PageKind::Destination},
                    {PageKind::Destination},
                    {PageKind::ProgramGroup, PageAction::Back},
                    {PageKind::Destination},
                    {PageKind::ProgramGroup}}),
              PageChain::End::Install);
}

TEST_F(PagesTest, TellHowMuchRoomIsNeededAndFree)
{
    project.DialogBoxes.DestinationDlg = 1;
    project.DialogBoxData.DestDirShowSizeInfo = kOn;
    AddRow("0", 1500);
    AddRow("2", 12 * kMegabyte);
    memory.files.capacities["c:\\"] = 100 * kMegabyte;
    memory.files.capacities["e:\\"] = 30 * kMegabyte;
    ask.Expect({BoxKind::Inform, "Diskutrymme",
                "Nödvändigt diskutrymme: 12,0 MB\r\nLedigt diskutrymme: 30,0 MB"});
    Lead({{PageKind::Destination, PageAction::Next,
           [](SetupPage& page, const PageListener& listener) {
               EXPECT_EQ(page.Find(PageField::NeededSpace)->text, "12,0 MB");
               EXPECT_EQ(page.Find(PageField::FreeSpace)->text, "100,0 MB");
               Typing(PageField::Folder, "E:\\Annan")(page, listener);
               EXPECT_EQ(page.Find(PageField::FreeSpace)->text, "30,0 MB");
               Typing(PageField::Folder, "ingenstans")(page, listener);
               EXPECT_EQ(page.Find(PageField::FreeSpace)->text, "okänt");
               Typing(PageField::Folder, "E:\\Annan")(page, listener);
               listener(page, PageField::SpaceBox);
           }}});
}

TEST_F(PagesTest, RefuseAPlaceWithTooLittleRoom)
{
    project.DialogBoxes.DestinationDlg = 1;
    AddRow("0", 10 * kMegabyte);
    memory.files.capacities["e:\\"] = 5 * kMegabyte;
    memory.files.capacities["c:\\"] = 50 * kMegabyte;
    ask.Expect({BoxKind::Critical, kTitle,
                "Det finns inte tillräckligt med ledigt utrymme på E:. Välj en annan plats eller "
                "frigör utrymme."});
    EXPECT_EQ(
        Lead({{PageKind::Destination, PageAction::Next, Typing(PageField::Folder, "E:\\Annan")},
              {PageKind::Destination, PageAction::Next, Typing(PageField::Folder, "C:\\Annan")}}),
        PageChain::End::Install);
}

TEST_F(PagesTest, ADriveTakesTheMainFolderAlong)
{
    project.DialogBoxes.DestinationDriveDlg = 1;
    for (char letter = 'F'; letter <= 'Z'; ++letter)
        memory.files.driveKinds[Text(1, char(letter + 32)) + ":\\"] = DriveKind::NoRoot;
    memory.files.driveKinds["d:\\"] = DriveKind::Cd;
    Lead({{PageKind::DestinationDrive, PageAction::Next,
           [](SetupPage& page, const PageListener& listener) {
               PagePiece* const drives = page.Find(PageField::Drives);
               ASSERT_EQ(drives->items.size(), 2U);
               EXPECT_EQ(drives->items[0].text.substr(0, 3), "C:\\");
               EXPECT_EQ(drives->selected, 0);
               drives->selected = 1;
               listener(page, PageField::Drives);
           }}});
    EXPECT_EQ(choices.destination, "E:\\Program\\Exempel");
}

TEST_F(PagesTest, ComponentsAreTickedSizedAndDescribed)
{
    UseComponent(1, "Program").CompMustAlwaysBeInstalled = 1;
    auto& help = UseComponent(3, "Hjälp till %PROJECTNAME");
    help.CompDefault = 0;
    help.CompText = "Läs om %PROJECTNAME.";
    help.CompCanChangeDir = 1;
    help.CompDir = "Hjälp";
    AddRow("0", 1024);
    AddRow("1", 2 * 1024);
    AddRow("3", 4 * 1024);
    EXPECT_EQ(Lead({{PageKind::Components, PageAction::Next,
                     [](SetupPage& page, const PageListener& listener) {
                         PagePiece* const list = page.Find(PageField::Components);
                         EXPECT_THAT(list->items,
                                     ElementsAre(PageItem{"Program", "2 kB", true},
                                                 PageItem{"Hjälp till Exempel", "4 kB", false}));
                         EXPECT_EQ(page.Find(PageField::NeededSpace)->text, "3 kB");
                         EXPECT_FALSE(page.Find(PageField::Folder)->isEnabled);
                         list->items[0].isTicked = false;
                         list->items[1].isTicked = true;
                         list->selected = 1;
                         listener(page, PageField::Components);
                         EXPECT_TRUE(list->items[0].isTicked) << "must be installed";
                         EXPECT_EQ(page.Find(PageField::NeededSpace)->text, "7 kB");
                         EXPECT_EQ(page.Find(PageField::ComponentText)->text, "Läs om Exempel.");
                         EXPECT_TRUE(page.Find(PageField::Folder)->isEnabled);
                         EXPECT_EQ(page.Find(PageField::Folder)->text,
                                   "C:\\Program\\Exempel\\Hjälp");
                         Typing(PageField::Folder, "E:\\Hjälp")(page, listener);
                     }}}),
              PageChain::End::Install);
    EXPECT_EQ(choices.components[2].isTicked, true);
    EXPECT_EQ(choices.components[2].folder, "E:\\Hjälp");
    EXPECT_EQ(choices.components[0].folder, std::nullopt);
}

TEST_F(PagesTest, AComponentsFolderFollowsTheMainOneUntilItIsChanged)
{
    project.DialogBoxes.DestinationDlg = 1;
    auto& data = UseComponent(1, "Data");
    data.CompDir = "Data";
    data.CompCanChangeDir = 1;
    Lead({{PageKind::Destination},
          {PageKind::Components, PageAction::Back},
          {PageKind::Destination, PageAction::Next, Typing(PageField::Folder, "E:\\X")},
          {PageKind::Components}});
    EXPECT_EQ(shown[1].Find(PageField::Folder)->text, "C:\\Program\\Exempel\\Data");
    EXPECT_EQ(shown[3].Find(PageField::Folder)->text, "E:\\X\\Data");
    ask.Expect({BoxKind::Critical, kTitle});
    Lead({{PageKind::Destination},
          {PageKind::Components, PageAction::Next, Typing(PageField::Folder, "C:\\a|b")},
          {PageKind::Components, PageAction::Next, Typing(PageField::Folder, "C:\\b")}});
    EXPECT_EQ(choices.components[0].folder, "C:\\b");
}

TEST_F(PagesTest, WhatTheUserCanLeaveOutIsNoReasonToRefuseAPlace)
{
    project.DialogBoxes.DestinationDlg = 1;
    UseComponent(1, "Stor");
    AddRow("0", kMegabyte);
    AddRow("1", 10 * kMegabyte);
    memory.files.capacities["c:\\"] = 5 * kMegabyte;
    ask.Expect({BoxKind::Critical, kTitle});
    EXPECT_EQ(Lead({{PageKind::Destination},
                    {PageKind::Components},
                    {PageKind::Components, PageAction::Next,
                     [](SetupPage& page, const PageListener& listener) {
                         page.Find(PageField::Components)->items[0].isTicked = false;
                         listener(page, PageField::Components);
                     }}}),
              PageChain::End::Install);
    EXPECT_EQ(choices.components[0].isTicked, false);
}

TEST_F(PagesTest, AComponentThatOnlyUpdatesSaysWhyItCanNotBeTicked)
{
    auto& update = UseComponent(1, "Uppdatering");
    update.CompAdvOnlyUpdate = 1;
    update.CompAdvUpdateRefFile = "%DESTDIR\\gammal.exe";
    update.CompAdvUpdateInfoBoxTitle = "Saknas";
    update.CompAdvUpdateInfoBoxText = "Installera först.";
    ask.Expect({BoxKind::Inform, "Saknas", "Installera först."});
    const auto tick = [](SetupPage& page, const PageListener& listener) {
        page.Find(PageField::Components)->items[0].isTicked = true;
        listener(page, PageField::Components);
    };
    Lead({{PageKind::Components, PageAction::Next, tick}});
    EXPECT_FALSE(shown[0].Find(PageField::Components)->items[0].isTicked);
    EXPECT_EQ(choices.components[0].isTicked, false);
    memory.files.Put("C:\\Program\\Exempel\\gammal.exe", "x");
    Lead({{PageKind::Components}});
    EXPECT_EQ(choices.components[0].isTicked, true);
}

TEST_F(PagesTest, AProgramGroupIsTypedOrChosen)
{
    project.DialogBoxes.ProgramGroupDlg = 1;
    ask.Expect({BoxKind::Critical, kTitle,
                "'..\\Autostart' kan inte vara namnet på en programgrupp. Skriv ett annat namn."});
    Lead({{PageKind::ProgramGroup, PageAction::Next, Typing(PageField::Group, "..\\Autostart")},
          {PageKind::ProgramGroup, PageAction::Next,
           [](SetupPage& page, const PageListener& listener) {
               PagePiece* const groups = page.Find(PageField::Groups);
               EXPECT_THAT(groups->items,
                           ElementsAre(PageItem{"Spel", {}}, PageItem{"Tillbehör", {}}));
               groups->selected = 1;
               listener(page, PageField::Groups);
               EXPECT_EQ(page.Find(PageField::Group)->text, "Tillbehör");
           }}});
    EXPECT_EQ(shown[0].Find(PageField::Group)->text, "Exempel-grupp");
    EXPECT_EQ(choices.programGroup, "Tillbehör");
}

TEST_F(PagesTest, TheLastOneBeforeTheInstallationSumsUp)
{
    project.DialogBoxes.StartInstallDlg = project.DialogBoxes.ProgramGroupDlg = 1;
    project.DialogBoxData.StartInstallDlgText = "Nu börjar det.";
    UseComponent(1, "Program");
    UseComponent(2, "Hjälp").CompDefault = 0;
    UseComponent(4, "Bilder");
    Lead({{PageKind::Components}, {PageKind::ProgramGroup}, {PageKind::StartInstall}});
    EXPECT_EQ(shown[2].Find(PageField::BodyText)->text,
              "Nu börjar det.\r\n\r\nMapp: C:\\Program\\Exempel\r\nProgramgrupp: Exempel-grupp\r\n"
              "Komponenter: Program, Bilder");
}

TEST_F(PagesTest, TheClosingOneOffersTheDocument)
{
    ScriptedPages none;
    PageChain(Input()).ShowClosingPage(none);

    project.DialogBoxes.InstallCompletedDlg = 1;
    project.ShowDocAfter.DocFileName = "%DESTDIR\\läs.txt";
    ScriptedPages plain({{PageKind::InstallCompleted}});
    PageChain(Input()).ShowClosingPage(plain);
    EXPECT_EQ(plain.shown[0].buttons, PageButtons::Finish);
    EXPECT_EQ(plain.shown[0].Find(PageField::ShowDocument), nullptr);

    project.ShowDocAfter.ShowCheckBox = 1;
    project.ShowDocAfter.CheckBoxText = "";
    ScriptedPages offered(
        {{PageKind::InstallCompleted, PageAction::Cancel, [](SetupPage& page, const PageListener&) {
              PagePiece* const box = page.Find(PageField::ShowDocument);
              EXPECT_EQ(box->label, "&Visa dokumentet");
              EXPECT_TRUE(box->isTicked);
              box->isTicked = false;
          }}});
    PageChain chain(Input());
    EXPECT_TRUE(chain.ShowsDocument());
    chain.ShowClosingPage(offered);
    EXPECT_FALSE(chain.ShowsDocument());
}

class EarlierVersion : public PagesTest {
protected:
    EarlierVersion()
    {
        project.Updates.HandleUpdate = kOn;
        project.Updates.UpdateReferenceFile = "EXEMPEL.EXE";
        Put(UninstallEntryKey("Exempel"), "InstallLocation", "E:\\Gammal");
        memory.files.Put("E:\\Gammal\\exempel.exe", "x");
        memory.files.Put("E:\\Egen\\exempel.exe", "x");
    }
    void Put(const RegistryKey& key, const Text& name, const Text& text)
    {
        target.MakeKey(key);
        target.WriteValue(key, name, TextData(text));
    }
    std::optional<Text> Find()
    {
        const auto found = FindEarlierVersion(setup, memory.host, target);
        return found ? std::optional(found->folder) : std::nullopt;
    }
};

TEST_F(EarlierVersion, IsFoundWhereItWasInstalled)
{
    EXPECT_EQ(Find(), "E:\\Gammal");
    memory.files.RemoveFile("E:\\Gammal\\exempel.exe");
    EXPECT_EQ(Find(), std::nullopt) << "the file by which it is known is gone";
    project.Updates.UpdateReferenceFile = "";
    EXPECT_EQ(Find(), "E:\\Gammal");
    project.Updates.HandleUpdate = kOff;
    EXPECT_EQ(Find(), std::nullopt);
}

TEST_F(EarlierVersion, IsLookedForInTheProjectsOwnKeyToo)
{
    const RegistryKey own{RegistryRoot::LocalMachine, "SOFTWARE\\Firma"};
    project.Updates.AdvUpdateRegHKEYIndex = 2;
    project.Updates.AdvUpdateRegSubKey = own.subKey;
    project.Updates.AdvUpdateRegValueName = "Plats";
    Put(own, "Plats", "\"E:\\Egen\\Exempel.exe\"");
    EXPECT_EQ(Find(), "E:\\Gammal") << "the usual place goes first";
    project.Updates.AdvUpdateRegAlwaysUseUserDefKey = kOn;
    EXPECT_EQ(Find(), "E:\\Egen");
    Put(own, "Plats", "ingenstans");
    EXPECT_EQ(Find(), "E:\\Gammal");
    project.Updates.AdvUpdateRegAlwaysUseUserDefKey = kOff;
    Put(own, "Plats", "E:\\Egen\\");
    Put(UninstallEntryKey("Exempel"), "InstallLocation", "E:\\Borta");
    EXPECT_EQ(Find(), "E:\\Egen");
    project.Updates.AdvUpdateRegHKEYIndex = 17;
    EXPECT_EQ(Find(), std::nullopt);
}

TEST_F(EarlierVersion, IsUpdatedInItsFolderWithoutAWarning)
{
    project.DialogBoxes.DestinationDlg = 1;
    project.DialogBoxData.WarnIfDestDirExists = kOn;
    ScriptedPages pages({{PageKind::Destination}});
    PageInput input = Input();
    input.destination = "E:\\Gammal";
    input.isUpdate = true;
    PageChain chain(input);
    EXPECT_EQ(chain.ShowPages(pages), PageChain::End::Install);
    EXPECT_EQ(pages.shown[0].Find(PageField::Folder)->text, "E:\\Gammal");
}

} // namespace

} // namespace quillon::test
