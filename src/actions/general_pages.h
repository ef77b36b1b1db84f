// The five pages of a setup that are alike: a title, a text and a picture.
#pragma once

#include "actions/dialog_chain.h"

namespace quillon {

struct GeneralPage {
    DialogSwitch isOn;
    Text section::DialogBoxData::*title;
    Text section::DialogBoxData::*text;
    Text section::DialogBoxData::*bitmap;
};

// clang-format off
inline constexpr GeneralPage kGeneralPages[] = {
    {&section::DialogBoxes::WelcomeDlg,          &section::DialogBoxData::WelcomeDlgTitle,
     &section::DialogBoxData::WelcomeDlgText,    &section::DialogBoxData::WelcomeDlgBitmap},
    {&section::DialogBoxes::GeneralInfoDlg,      &section::DialogBoxData::GeneralDlgTitle,
     &section::DialogBoxData::GeneralDlgText,    &section::DialogBoxData::GeneralDlgBitmap},
    {&section::DialogBoxes::GeneralInfoDlg2,     &section::DialogBoxData::GeneralDlgTitle2,
     &section::DialogBoxData::GeneralDlgText2,   &section::DialogBoxData::GeneralDlgBitmap2},
    {&section::DialogBoxes::StartInstallDlg,     &section::DialogBoxData::StartInstallDlgTitle,
     &section::DialogBoxData::StartInstallDlgText, &section::DialogBoxData::StartInstallDlgBitmap},
    {&section::DialogBoxes::InstallCompletedDlg, &section::DialogBoxData::InstallCompleteDlgTitle,
     &section::DialogBoxData::InstallCompleteDlgText, &section::DialogBoxData::InstallCompleteDlgBitmap},
};
// clang-format on

/// The page that this switch turns on, which must be one of the five.
const GeneralPage& GeneralPageOf(DialogSwitch isOn);

} // namespace quillon
