#include "runtime/pages/page_order.h"

#include <algorithm>
#include <iterator>

namespace quillon {

namespace {

using section::DialogBoxData;
using section::DialogBoxes;

// clang-format off
constexpr PageSource kPagesInOrder[] = {
    {PageKind::Welcome,          &DialogBoxes::WelcomeDlg,          Message::PageWelcome,
     &DialogBoxData::WelcomeDlgTitle,         &DialogBoxData::WelcomeDlgText,         &DialogBoxData::WelcomeDlgBitmap},
    {PageKind::GeneralInfo,      &DialogBoxes::GeneralInfoDlg,      Message::PageGeneralInfo,
     &DialogBoxData::GeneralDlgTitle,         &DialogBoxData::GeneralDlgText,         &DialogBoxData::GeneralDlgBitmap},
    {PageKind::GeneralInfo2,     &DialogBoxes::GeneralInfoDlg2,     Message::PageGeneralInfo2,
     &DialogBoxData::GeneralDlgTitle2,        &DialogBoxData::GeneralDlgText2,        &DialogBoxData::GeneralDlgBitmap2},
    {PageKind::LicenseInfo,      &DialogBoxes::LicenseInfoDlg,      Message::PageLicenseInfo,
     &DialogBoxData::LicenseTitle,            &DialogBoxData::LicenseText,            nullptr},
    {PageKind::LicenseInfoRtf,   &DialogBoxes::LicenseInfoRtfDlg,   Message::PageLicenseInfoRtf,
     &DialogBoxData::LicenseTitleRtf,         nullptr,                                nullptr},
    {PageKind::Password,         &DialogBoxes::PasswordDlg,         Message::PagePassword},
    {PageKind::NameCompany,      &DialogBoxes::NameCompanyDlg,      Message::PageNameCompany,
     nullptr,                                 nullptr,                                &DialogBoxData::NameCompanyDlgBitmap},
    {PageKind::Destination,      &DialogBoxes::DestinationDlg,      Message::PageDestination},
    {PageKind::DestinationDrive, &DialogBoxes::DestinationDriveDlg, Message::PageDestinationDrive},
    {PageKind::Components,       nullptr,                           Message::PageComponents},
    {PageKind::ProgramGroup,     &DialogBoxes::ProgramGroupDlg,     Message::PageProgramGroup},
    {PageKind::StartInstall,     &DialogBoxes::StartInstallDlg,     Message::PageStartInstall,
     &DialogBoxData::StartInstallDlgTitle,    &DialogBoxData::StartInstallDlgText,    &DialogBoxData::StartInstallDlgBitmap},
    {PageKind::InstallCompleted, &DialogBoxes::InstallCompletedDlg, Message::PageInstallCompleted,
     &DialogBoxData::InstallCompleteDlgTitle, &DialogBoxData::InstallCompleteDlgText, &DialogBoxData::InstallCompleteDlgBitmap},
};
// clang-format on

bool HasSomethingToChoose(const SetupInformation& setup)
{
    return std::ranges::any_of(ComponentsInUse(setup), [&](int number) {
        const auto& component = setup.project.FileComponents[std::size_t(number) - 1];
        return component.CompMustAlwaysBeInstalled == 0 || component.CompCanChangeDir != 0;
    });
}

} // namespace

const PageSource& SourceOf(PageKind kind)
{
    return *std::ranges::find(kPagesInOrder, kind, &PageSource::kind);
}

std::vector<PageKind> PagesOf(const SetupInformation& setup)
{
    std::vector<PageKind> pages;
    for (const PageSource& source : kPagesInOrder)
        if (source.isOn ? setup.project.DialogBoxes.*source.isOn == 1 : HasSomethingToChoose(setup))
            pages.push_back(source.kind);
    return pages;
}

std::vector<int> ComponentsInUse(const SetupInformation& setup)
{
    std::vector<int> numbers;
    for (int number = 1; number <= int(kComponentCount); ++number)
        if (setup.UseComponents != kOff &&
            setup.project.FileComponents[std::size_t(number) - 1].Comp == 1)
            numbers.push_back(number);
    return numbers;
}

} // namespace quillon
