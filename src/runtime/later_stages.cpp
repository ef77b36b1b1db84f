#include "runtime/later_stages.h"

namespace quillon {

namespace {

constexpr const char* kNotYet = "stöds inte av den här versionen av installationsprogrammet";

struct Part {
    bool isWanted;
    const char* what;
};

} // namespace

std::vector<SkippedPart> PartsOfLaterStages(const SetupInformation& setup)
{
    const Project& project = setup.project;
    const section::DialogBoxes& pages = project.DialogBoxes;
    // clang-format off
    const Part parts[] = {
        {pages.WelcomeDlg == 1,                           "dialogrutan WelcomeDlg"},
        {pages.GeneralInfoDlg == 1,                       "dialogrutan GeneralInfoDlg"},
        {pages.GeneralInfoDlg2 == 1,                      "dialogrutan GeneralInfoDlg2"},
        {pages.LicenseInfoDlg == 1,                       "dialogrutan LicenseInfoDlg"},
        {pages.LicenseInfoRtfDlg == 1,                    "dialogrutan LicenseInfoRtfDlg"},
        {pages.NameCompanyDlg == 1,                       "dialogrutan NameCompanyDlg"},
        {pages.DestinationDlg == 1,                       "dialogrutan DestinationDlg"},
        {pages.DestinationDriveDlg == 1,                  "dialogrutan DestinationDriveDlg"},
        {pages.ProgramGroupDlg == 1,                      "dialogrutan ProgramGroupDlg"},
        {pages.StartInstallDlg == 1,                      "dialogrutan StartInstallDlg"},
        {pages.InstallCompletedDlg == 1,                  "dialogrutan InstallCompletedDlg"},
        {!project.Lists.RunScriptBefore.empty(),          "skriptet före installationen"},
        {!project.Lists.RunScriptAfter.empty(),           "skriptet efter installationen"},
        {!project.Lists.AutoexecBat.empty(),              "raderna till AUTOEXEC.BAT"},
        {!project.Lists.ConfigSys.empty(),                "raderna till CONFIG.SYS"},
        {project.NET.NET_TestIfInstalled != kOff,         "testet av .NET Framework"},
        {!project.RunAppAfter.AppFileName1.empty(),       "program 1 efter installationen"},
        {!project.RunAppAfter.AppFileName2.empty(),       "program 2 efter installationen"},
        {!project.ShowDocAfter.DocFileName.empty(),       "dokumentet efter installationen"},
        {project.Updates.HandleUpdate != kOff,            "uppdatering av en tidigare installation"},
        {project.InstallOptions.RestartWindows != kOff,   "omstarten av datorn"},
    };
    // clang-format on
    std::vector<SkippedPart> skipped;
    for (const Part& part : parts)
        if (part.isWanted)
            skipped.push_back({part.what, kNotYet});
    return skipped;
}

} // namespace quillon
