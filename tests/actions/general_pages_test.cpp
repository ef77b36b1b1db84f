#include "actions/general_pages.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using section::DialogBoxData;
using section::DialogBoxes;

TEST(GeneralPages, HaveFieldsOfTheirOwn)
{
    const GeneralPage pages[] = {
        {&DialogBoxes::WelcomeDlg, &DialogBoxData::WelcomeDlgTitle, &DialogBoxData::WelcomeDlgText,
         &DialogBoxData::WelcomeDlgBitmap},
        {&DialogBoxes::GeneralInfoDlg, &DialogBoxData::GeneralDlgTitle,
         &DialogBoxData::GeneralDlgText, &DialogBoxData::GeneralDlgBitmap},
        {&DialogBoxes::GeneralInfoDlg2, &DialogBoxData::GeneralDlgTitle2,
         &DialogBoxData::GeneralDlgText2, &DialogBoxData::GeneralDlgBitmap2},
        {&DialogBoxes::StartInstallDlg, &DialogBoxData::StartInstallDlgTitle,
         &DialogBoxData::StartInstallDlgText, &DialogBoxData::StartInstallDlgBitmap},
        {&DialogBoxes::InstallCompletedDlg, &DialogBoxData::InstallCompleteDlgTitle,
         &DialogBoxData::InstallCompleteDlgText, &DialogBoxData::InstallCompleteDlgBitmap},
    };
    for (const GeneralPage& expected : pages) {
        const GeneralPage& page = GeneralPageOf(expected.isOn);
        EXPECT_EQ(page.isOn, expected.isOn);
        EXPECT_EQ(page.title, expected.title);
        EXPECT_EQ(page.text, expected.text);
        EXPECT_EQ(page.bitmap, expected.bitmap);
    }
}

TEST(GeneralPages, AreCalledAsInTheChain)
{
    EXPECT_STREQ(CaptionOf(&DialogBoxes::GeneralInfoDlg2), "Generell information 2");
    EXPECT_STREQ(CaptionOf(&DialogBoxes::InstallCompletedDlg), "Installationen avslutad");
    EXPECT_STREQ(CaptionOf(nullptr), "");
}

} // namespace
} // namespace quillon
