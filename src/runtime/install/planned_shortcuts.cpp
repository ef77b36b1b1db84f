#include "runtime/install/planned_shortcuts.h"

#include "formats/document_viewers.h"
#include "formats/icon_marker.h"
#include "formats/runtime_programs.h"
#include "formats/setup_names.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "runtime/texts/failure_reason.h"

#include <algorithm>

namespace quillon {

namespace {

struct Places {
    TargetFolder desktop;
    TargetFolder startMenu;
    TargetFolder programs;
};

constexpr Places kOwn = {TargetFolder::Desktop, TargetFolder::StartMenu, TargetFolder::Programs};
constexpr Places kCommon = {TargetFolder::CommonDesktop, TargetFolder::CommonStartMenu,
                            TargetFolder::CommonPrograms};

// A system that knows one user only has no common folders.
Places PlacesOf(const PlanInput& input)
{
    const bool forAll = input.setup.project.ProgramGroup.ProgramGroup_AllUsers != kOff;
    return forAll && !input.target.Folder(TargetFolder::CommonPrograms).empty() ? kCommon : kOwn;
}

// Empty where the system assigns one.
Text ViewerProgram(const PlanInput& input, DocumentViewer viewer)
{
    const Text windows = input.host.machine.GetWindowsDir();
    switch (viewer) {
    case DocumentViewer::Notepad:
        return JoinPath(windows, "NOTEPAD.EXE");
    case DocumentViewer::WinHelp:
        return JoinPath(windows, "WINHLP32.EXE");
    case DocumentViewer::WordPad:
        return input.host.machine
            .ReadRegistryValue(
                RegistryRoot::LocalMachine,
                "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\WORDPAD.EXE", "")
            .value_or(JoinPath(input.host.machine.GetProgramFilesDir(),
                               "Windows NT\\Accessories\\WORDPAD.EXE"));
    case DocumentViewer::Write:
        return JoinPath(windows, "WRITE.EXE");
    case DocumentViewer::OfSystem:
        break;
    }
    return {}; // also for a number of a later version
}

// An icon file's row carries the command line that the icon starts: a program, in quotation marks
// where its path holds blanks, and its parameters. It is cut before it is expanded, since a folder
// that a variable stands for may hold blanks of its own.
void SetCommandLine(const PlanInput& input, const Text& commandLine, Shortcut& shortcut)
{
    const Text line = TrimBlanks(commandLine);
    const bool quoted = line.substr(0, 1) == "\"";
    const std::size_t end = quoted ? line.find('"', 1) : line.find(' ');
    shortcut.program = input.variables.ExpandPath(RemoveQuotes(line.substr(0, end)));
    if (end != Text::npos)
        shortcut.arguments = TrimBlanks(input.variables.Expand(line.substr(end + 1)));
}

Shortcut ShortcutOf(const PlanInput& input, const PlannedFile& file)
{
    const InstallRow& row = *file.row;
    Shortcut shortcut;
    shortcut.workFolder = input.variables.ExpandPath(row.workFolder);
    shortcut.iconFile = input.variables.ExpandPath(row.iconFile);
    shortcut.description = input.variables.Expand(row.iconTitle);
    if (EqualIgnoreCase(ExtensionFromFirstDot(row.name), "ico")) {
        SetCommandLine(input, row.iconParameters, shortcut);
        shortcut.iconFile = file.path;
        return shortcut;
    }
    if (shortcut.workFolder.empty())
        shortcut.workFolder = ExtractDirectory(file.path);
    shortcut.program = file.path;
    shortcut.arguments = TrimBlanks(input.variables.Expand(row.iconParameters));
    if (const Text viewer = ViewerProgram(input, DocumentViewer(row.viewer)); !viewer.empty()) {
        const Text more = shortcut.arguments.empty() ? "" : " " + shortcut.arguments;
        shortcut.arguments = "\"" + file.path + "\"" + more;
        shortcut.program = viewer;
    }
    return shortcut;
}

Text GroupFolder(const PlanInput& input, const Places& places)
{
    Text folder = input.target.Folder(places.programs);
    const Text group = input.variables.Expand(input.setup.project.ProgramGroup.ProgramGroup);
    if (FaultOfProgramGroup(group) != PathFault::None)
        throw DamagedPackage(input.texts, {Message::PackageBadFolder, "ProgramGroup", group});
    // A group may lie in another one.
    for (const Text& part : PathParts(group, "\\"))
        if (const Text name = AsFileName(part); !name.empty())
            folder = JoinPath(folder, name);
    return folder;
}

// The place that the marker's last letter names; empty where it names none.
Text SecondPlace(const PlanInput& input, const Places& places, const Text& marker)
{
    switch (marker.back()) {
    case kDesktopLetter:
        return input.target.Folder(places.desktop);
    case kStartMenuLetter:
        return input.target.Folder(places.startMenu);
    case kProgramsLetter:
        return input.target.Folder(places.programs);
    default:
        return {};
    }
}

struct ShortcutPlaces {
    const PlanInput& input;
    const Places& places;
    const Text& programGroup;
};

void AddShortcuts(const ShortcutPlaces& where, const PlannedFile& file,
                  std::vector<PlannedShortcut>& shortcuts)
{
    if (!HasIconMarker(file.row->iconMarker))
        return;
    const Shortcut shortcut = ShortcutOf(where.input, file);
    const Text title =
        AsFileName(shortcut.description.empty() ? file.row->name : shortcut.description);
    shortcuts.push_back({JoinPath(where.programGroup, title + ".lnk"), shortcut});
    const Text second = SecondPlace(where.input, where.places, file.row->iconMarker);
    if (!second.empty())
        shortcuts.push_back({JoinPath(second, title + ".lnk"), shortcut});
}

void PlanUninstallIcon(const PlanInput& input, InstallPlan& plan)
{
    const section::InstallOptions& options = input.setup.project.InstallOptions;
    if (!plan.hasUninstaller || options.CreateUninstallIcon == kOff)
        return;
    Shortcut shortcut;
    shortcut.program = UninstallerPath(plan.mainFolder);
    shortcut.arguments = "\"" + plan.installJournal + "\"";
    shortcut.workFolder = plan.mainFolder;
    shortcut.description =
        input.texts(Message::UninstallIcon, input.setup.project.ProjectName.ProjectName);
    plan.shortcuts.push_back(
        {JoinPath(plan.programGroup, AsFileName(shortcut.description) + ".lnk"), shortcut});
}

} // namespace

void PlanShortcuts(const PlanInput& input, InstallPlan& plan)
{
    const Places places = PlacesOf(input);
    plan.programGroup = GroupFolder(input, places);
    for (const PlannedFile& file : plan.files)
        AddShortcuts({input, places, plan.programGroup}, file, plan.shortcuts);
    PlanUninstallIcon(input, plan);
    std::vector<PlannedShortcut> leftOut;
    for (const PlannedFile& file : plan.filesLeftOut)
        AddShortcuts({input, places, plan.programGroup}, file, leftOut);
    for (const PlannedShortcut& shortcut : leftOut)
        plan.shortcutsLeftOut.push_back(shortcut.path);
}

Text UninstallerPath(const Text& mainFolder)
{
    return JoinPath(mainFolder, RuntimePrograms::kUninstaller.name);
}

} // namespace quillon
