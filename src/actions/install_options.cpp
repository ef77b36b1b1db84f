#include "actions/install_options.h"

#include <algorithm>

namespace quillon {

namespace {

using section::InstallOptions;
using section::TargetOS;

struct NewerSystem {
    Flag TargetOS::*system;
    Flag TargetOS::*newer;
};

constexpr NewerSystem kNewerSystems[] = {
    {&TargetOS::TargetOS_Win95, &TargetOS::TargetOS_Win95OSR2},
    {&TargetOS::TargetOS_Win95, &TargetOS::TargetOS_Win98},
    {&TargetOS::TargetOS_Win95OSR2, &TargetOS::TargetOS_Win98},
    {&TargetOS::TargetOS_WinNT4, &TargetOS::TargetOS_WinNT4SP3},
};

Flag FlagOf(bool isTicked)
{
    return isTicked ? kOn : kOff;
}

} // namespace

std::optional<int> SetupNameRow(std::string_view name)
{
    const auto* const row = std::ranges::find(kSetupNames, name);
    if (row == kSetupNames.end())
        return std::nullopt;
    return static_cast<int>(row - kSetupNames.begin());
}

int RestartRow(const InstallOptions& options)
{
    if (options.RestartWindows != kOff)
        return 1;
    return options.NeverRestartWindows != kOff ? 2 : 0;
}

void SetRestartRow(InstallOptions& options, int row)
{
    options.RestartWindows = FlagOf(row == 1);
    options.NeverRestartWindows = FlagOf(row == 2);
}

void ClickTargetSystem(TargetOS& systems, Flag TargetOS::*system, bool isTicked)
{
    systems.*system = FlagOf(isTicked);
    for (const NewerSystem& row : kNewerSystems)
        if (isTicked && row.system == system)
            systems.*row.newer = kOn;
}

void ClickUninstallSupport(InstallOptions& options, bool isTicked)
{
    options.UninstallSupport = FlagOf(isTicked);
    if (!isTicked)
        options.CreateUninstallIcon = kOff;
}

void ClickCreateUninstallIcon(InstallOptions& options, bool isTicked)
{
    options.CreateUninstallIcon = FlagOf(isTicked);
    if (isTicked)
        options.UninstallSupport = kOn;
}

bool IsSelfExtractFilename(std::string_view name)
{
    // Kept: the extension may occur anywhere in the name.
    return name.empty() || UpperCase(name).find(".EXE") != Text::npos;
}

bool CheckSelfExtractFilename(std::string_view name, Ask& ask)
{
    if (IsSelfExtractFilename(name))
        return true;
    ask.Critical("Fel namntillägg",
                 "Filnamnet på en självuppackande EXE-fil måste alltid ha namntillägget .EXE på "
                 "slutet! Andra namntillägg, eller inget namntillägg alls, är inte tillåtet.");
    return false;
}

void SetTrueText(Text& value, bool isTrue)
{
    if (IsTrueText(value) != isTrue)
        value = NumberText(FlagOf(isTrue));
}

bool HasValuesWithoutProgram(const section::RunAppSelfX& program)
{
    return program.ProgramFilename.empty() &&
           !(program.Param.empty() && program.ReturnValueExit.empty() &&
             program.ReturnValueBack.empty() && program.ReturnValueDD.empty() &&
             program.DD_sSubKey.empty() && program.DD_sValueName.empty());
}

InternetAdvanced InternetAdvancedOf(const Project& project)
{
    return {project.InstallOptionsInternet.ExpandEXEInWinTempMap, project.RunAppSelfX};
}

void SetInternetAdvanced(Project& project, const InternetAdvanced& advanced)
{
    project.InstallOptionsInternet.ExpandEXEInWinTempMap = advanced.ExpandEXEInWinTempMap;
    project.RunAppSelfX = advanced.program;
}

} // namespace quillon
