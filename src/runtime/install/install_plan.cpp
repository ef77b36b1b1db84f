#include "runtime/install/install_plan.h"

#include "formats/install_journal_name.h"
#include "formats/new_windows_files.h"
#include "formats/package_files.h"
#include "formats/row_safety.h"
#include "helpers/drive_path.h"
#include "helpers/windows_path.h"
#include "runtime/command_line/switches.h"
#include "runtime/install/planned_shortcuts.h"
#include "runtime/journal/install_journal.h"
#include "runtime/package/package_reader.h"
#include "runtime/texts/failure_reason.h"

#include <algorithm>

namespace quillon {

namespace {

const section::FileComponent* ComponentInUse(const PlanInput& input, int component)
{
    if (input.setup.UseComponents == kOff || component < 1 || component > int(kComponentCount))
        return nullptr;
    const auto& record = input.setup.project.FileComponents[std::size_t(component) - 1];
    return record.Comp == 1 ? &record : nullptr;
}

bool FindsNoEarlierVersion(const PlanInput& input, const section::FileComponent& component)
{
    return component.CompAdvOnlyUpdate != 0 &&
           !input.host.files.FileExists(input.variables.ExpandPath(component.CompAdvUpdateRefFile));
}

// Why the row is left out; nothing where it is not.
std::optional<Reason> ReasonToSkip(const PlanInput& input, const InstallRow& row)
{
    if (!IsComponentInstalled(input, ComponentNumberOf(row)))
        return Reason{Message::SkipComponentOff, row.component};
    const bool dontTouch = input.setup.project.InstallOptions.DontInstallSysFilesOnNewWin != kOff;
    if (dontTouch && IsPartOfNewWindows(row.name) && IsNewWindows(input.target.System()))
        return Reason{Message::SkipPartOfWindows};
    return std::nullopt;
}

// A folder without a drive is below the main folder.
Text DestinationOf(const PlanInput& input, const InstallRow& row)
{
    // Windows takes a slash for a backslash, so both have to look the same to the tests below.
    const Text folder = ReplaceAll(input.variables.ExpandPath(row.destination), "/", "\\");
    const bool isBelow =
        !folder.empty() && folder[0] != '%' && folder[0] != '\\' && folder.find(':') == Text::npos;
    const Text whole =
        isBelow ? JoinPath(input.variables.Value(NameOf(VariableMeaning::MainFolder)), folder)
                : folder;
    const bool isTree = input.setup.project.Media.TargetMedia == int(Medium::CdTree);
    // The values of the variables are known only here.
    if (FaultOfRow(row, isTree) != PathFault::None || !IsAbsolutePath(whole) ||
        FaultOfFolder(whole) != PathFault::None)
        throw DamagedPackage(input.texts, {Message::PackageBadFolder, row.name, row.destination});
    return whole;
}

void PlanRows(const PlanInput& input, InstallPlan& plan)
{
    for (const InstallRow& row : input.rows) {
        const Text folder = DestinationOf(input, row);
        const Text path = IsEmptyFolderRow(row) ? folder : JoinPath(folder, row.name);
        const auto reason = ReasonToSkip(input, row);
        if (reason)
            plan.skipped.push_back({path, *reason});
        if (!IsEmptyFolderRow(row))
            (reason ? plan.filesLeftOut : plan.files).push_back({&row, path});
        else if (!reason)
            plan.folders.push_back(path);
    }
}

void ExpandRegistryLine(const PlanInput& input, RegistryLine& line)
{
    line.text = input.variables.Expand(line.text);
    if (!IsTrueText(input.setup.project.InstallOptions.ExpandVariablesInRegistryKeys))
        return;
    line.key.subKey = PlainSubKey(input.variables.Expand(line.key.subKey));
    line.valueName = input.variables.Expand(line.valueName);
}

void PlanRegistry(const PlanInput& input, InstallPlan& plan)
{
    for (RegistryListLine& line : ReadRegistryLines(input.setup.project.Lists.Registry)) {
        const auto skip = [&](const Reason& reason) {
            plan.skipped.push_back({input.texts(Message::PartRegistryLine, line.line), reason});
        };
        if (line.read.reason) {
            skip({*line.read.reason});
        } else if (line.read.key.root == RegistryRoot::DynData) {
            skip({Message::SkipFixedRoot, RootName(RegistryRoot::DynData)});
        } else {
            ExpandRegistryLine(input, line.read);
            if (RemovesSystemKey(line.read))
                skip({Message::SkipSystemKey});
            else
                plan.registry.push_back(std::move(line.read));
        }
    }
}

void PlanIni(const PlanInput& input, InstallPlan& plan)
{
    IniList list = ReadIniLines(input.setup.project.Lists.INIFiles);
    for (const IniList::Unreadable& line : list.unreadable)
        plan.skipped.push_back({input.texts(Message::PartIniLine, line.line), {line.reason}});
    for (IniLine& line : list.lines) {
        // A bare name is in the Windows folder, as for the system's own functions.
        const Text file = input.variables.ExpandPath(line.file);
        line.file =
            IsAbsolutePath(file) ? file : JoinPath(input.host.machine.GetWindowsDir(), file);
        line.section = input.variables.Expand(line.section);
        line.name = input.variables.Expand(line.name);
        line.value = input.variables.Expand(line.value);
        plan.ini.push_back(std::move(line));
    }
}

void PlanRegistrations(const PlanInput& input, InstallPlan& plan)
{
    for (const Text& line : SplitLines(input.setup.project.Lists.RegisterFileList))
        if (!TrimBlanks(line).empty())
            plan.registerFiles.push_back(input.variables.ExpandPath(line));
}

} // namespace

bool IsComponentInstalled(const PlanInput& input, int number)
{
    const section::FileComponent* const component = ComponentInUse(input, number);
    if (component == nullptr)
        return true;
    const bool isTicked = component->CompDefault != 0 || component->CompMustAlwaysBeInstalled != 0;
    return isTicked && !FindsNoEarlierVersion(input, *component);
}

bool CanBeInstalled(const PlanInput& input, int number)
{
    const section::FileComponent* const component = ComponentInUse(input, number);
    return component == nullptr || !FindsNoEarlierVersion(input, *component);
}

bool IsNewWindows(SystemKind system)
{
    return system == SystemKind::WinME || system == SystemKind::Win2000 ||
           system == SystemKind::WinXP;
}

Text ChooseInstallJournal(const FileSystem& files, const Text& mainFolder, const Text& product)
{
    for (int n = 1;; ++n) {
        const Text path = JoinPath(mainFolder, InstallJournalName(n));
        if (!files.FileExists(path) || ProductOfJournal(files, path) == product)
            return path;
    }
}

InstallPlan MakeInstallPlan(const PlanInput& input)
{
    InstallPlan plan;
    plan.mainFolder = input.variables.Value(NameOf(VariableMeaning::MainFolder));
    plan.hasUninstaller = input.setup.project.InstallOptions.UninstallSupport != kOff;
    plan.installJournal = ChooseInstallJournal(input.host.files, plan.mainFolder,
                                               input.setup.project.ProjectName.ProjectName);
    PlanRows(input, plan);
    PlanShortcuts(input, plan);
    PlanRegistry(input, plan);
    PlanIni(input, plan);
    PlanRegistrations(input, plan);
    plan.scriptBefore = ReadScript(input.setup.project.Lists.RunScriptBefore);
    plan.scriptAfter = ReadScript(input.setup.project.Lists.RunScriptAfter);
    return plan;
}

} // namespace quillon
