#include "actions/dialog_chain.h"

#include <gtest/gtest.h>

#include <iterator>

namespace quillon {
namespace {

using section::DialogBoxes;

TEST(DialogChain, StandsInTheOrderInWhichTheSetupShowsIt)
{
    const char* const captions[] = {"Välkommen",
                                    "Generell information",
                                    "Generell information 2",
                                    "Licensinformation",
                                    "Licensinformation (RTF)",
                                    "Lösenord",
                                    "Registrering (lokalt)",
                                    "Destinationskatalog",
                                    "Enhet",
                                    "Välj programgrupp",
                                    "Starta installation",
                                    "Installationen avslutad"};
    ASSERT_EQ(std::size(kDialogChain), std::size(captions));
    for (std::size_t page = 0; page < std::size(captions); ++page)
        EXPECT_STREQ(kDialogChain[page].caption, captions[page]);
}

TEST(DialogChain, NamesEachSwitchOnce)
{
    DialogBoxes pages{};
    for (const DialogChainPage& page : kDialogChain)
        pages.*page.isOn = 0;
    for (const DialogChainPage& page : kDialogChain) {
        EXPECT_EQ(pages.*page.isOn, 0) << page.caption;
        pages.*page.isOn = 1;
    }
}

TEST(PressDialogPage, ClearsTheOtherAgreement)
{
    struct Row {
        DialogSwitch pressed;
        DialogSwitch other;
    };
    for (const auto& [pressed, other] :
         {Row{&DialogBoxes::LicenseInfoDlg, &DialogBoxes::LicenseInfoRtfDlg},
          Row{&DialogBoxes::LicenseInfoRtfDlg, &DialogBoxes::LicenseInfoDlg}})
        for (const Integer before : {Integer{0}, Integer{1}}) {
            DialogBoxes pages;
            pages.*pressed = before;
            pages.*other = 1;
            EXPECT_TRUE(PressDialogPage(pages, pressed));
            EXPECT_EQ(pages.*other, 0);
            EXPECT_EQ(pages.*pressed, before);
            EXPECT_FALSE(PressDialogPage(pages, pressed));
        }
}

TEST(PressDialogPage, ChangesNothingByAnyOtherPage)
{
    for (const DialogChainPage& page : kDialogChain) {
        if (page.isOn == &DialogBoxes::LicenseInfoDlg ||
            page.isOn == &DialogBoxes::LicenseInfoRtfDlg)
            continue;
        DialogBoxes pages;
        for (const DialogChainPage& other : kDialogChain)
            pages.*other.isOn = 1;
        EXPECT_FALSE(PressDialogPage(pages, page.isOn)) << page.caption;
        for (const DialogChainPage& other : kDialogChain)
            EXPECT_EQ(pages.*other.isOn, 1) << page.caption;
    }
}

TEST(TickDialogPage, AsksForAFolderOrADriveButNeverBoth)
{
    DialogBoxes pages;
    TickDialogPage(pages, &DialogBoxes::DestinationDriveDlg, true);
    EXPECT_EQ(pages.DestinationDriveDlg, 1);
    EXPECT_EQ(pages.DestinationDlg, 0);
    TickDialogPage(pages, &DialogBoxes::DestinationDlg, true);
    EXPECT_EQ(pages.DestinationDlg, 1);
    EXPECT_EQ(pages.DestinationDriveDlg, 0);
}

TEST(TickDialogPage, LeavesTheOtherBoxWhenItUnticks)
{
    DialogBoxes pages;
    TickDialogPage(pages, &DialogBoxes::DestinationDlg, false);
    EXPECT_EQ(pages.DestinationDlg, 0);
    EXPECT_EQ(pages.DestinationDriveDlg, 0);
    pages.DestinationDlg = pages.DestinationDriveDlg = 1;
    TickDialogPage(pages, &DialogBoxes::DestinationDlg, false);
    EXPECT_EQ(pages.DestinationDriveDlg, 1);
}

TEST(TickDialogPage, SetsEachOtherPageAlone)
{
    for (const DialogChainPage& page : kDialogChain)
        for (const bool ticked : {false, true}) {
            DialogBoxes pages;
            TickDialogPage(pages, page.isOn, ticked);
            EXPECT_EQ(pages.*page.isOn, ticked ? 1 : 0) << page.caption;
            const DialogBoxes fresh;
            const bool isDestination = page.isOn == &DialogBoxes::DestinationDlg ||
                                       page.isOn == &DialogBoxes::DestinationDriveDlg;
            for (const DialogChainPage& other : kDialogChain)
                if (other.isOn != page.isOn && !isDestination)
                    EXPECT_EQ(pages.*other.isOn, fresh.*other.isOn) << page.caption;
        }
}

TEST(LeadsTheChain, IsThePageInFrontOfAllThatAreOn)
{
    using section::DialogBoxes;
    DialogBoxes pages;
    pages.WelcomeDlg = 1;
    EXPECT_TRUE(LeadsTheChain(pages, &DialogBoxes::WelcomeDlg));
    EXPECT_FALSE(LeadsTheChain(pages, &DialogBoxes::GeneralInfoDlg));
    pages.WelcomeDlg = 0;
    EXPECT_TRUE(LeadsTheChain(pages, &DialogBoxes::WelcomeDlg));
    EXPECT_TRUE(LeadsTheChain(pages, &DialogBoxes::GeneralInfoDlg));
    EXPECT_FALSE(LeadsTheChain(pages, &DialogBoxes::InstallCompletedDlg));
}

} // namespace
} // namespace quillon
