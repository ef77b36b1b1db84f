// The pages that a setup leads through, in their order, and which of them shut each other out.
#pragma once

#include "project/records.h"

namespace quillon {

/// Where the project keeps whether a page appears.
using DialogSwitch = Integer section::DialogBoxes::*;

struct DialogChainPage {
    DialogSwitch isOn;
    const char* caption;
};

// clang-format off
inline constexpr DialogChainPage kDialogChain[] = {
    {&section::DialogBoxes::WelcomeDlg,          "Välkommen"},
    {&section::DialogBoxes::GeneralInfoDlg,      "Generell information"},
    {&section::DialogBoxes::GeneralInfoDlg2,     "Generell information 2"},
    {&section::DialogBoxes::LicenseInfoDlg,      "Licensinformation"},
    {&section::DialogBoxes::LicenseInfoRtfDlg,   "Licensinformation (RTF)"},
    {&section::DialogBoxes::PasswordDlg,         "Lösenord"},
    {&section::DialogBoxes::NameCompanyDlg,      "Registrering (lokalt)"},
    {&section::DialogBoxes::DestinationDlg,      "Destinationskatalog"},
    {&section::DialogBoxes::DestinationDriveDlg, "Enhet"},
    {&section::DialogBoxes::ProgramGroupDlg,     "Välj programgrupp"},
    {&section::DialogBoxes::StartInstallDlg,     "Starta installation"},
    {&section::DialogBoxes::InstallCompletedDlg, "Installationen avslutad"},
};
// clang-format on

/// What the page of this switch is called.
const char* CaptionOf(DialogSwitch page);

/// Whether this is the first enabled page, which has no page to go back to.
bool LeadsTheChain(const section::DialogBoxes& pages, DialogSwitch page);

/// A press on the page's box, before its tick turns: of the two agreement pages the other one goes
/// off, whichever way the tick is about to turn. True when that changed anything.
bool PressDialogPage(section::DialogBoxes& pages, DialogSwitch page);

/// Sets the page's tick. A setup asks for a folder or for a drive, so ticking one of these pages
/// unticks the other.
void TickDialogPage(section::DialogBoxes& pages, DialogSwitch page, bool ticked);

} // namespace quillon
