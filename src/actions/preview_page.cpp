#include "actions/preview_page.h"

#include "filelist/variables.h"
#include "filelist/view/totals.h"
#include "formats/variable_names.h"
#include "helpers/amount_text.h"
#include "helpers/drive_path.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "project/new_project.h"

#include <algorithm>
#include <iterator>

namespace quillon {

namespace {

using Meaning = VariableMeaning;

constexpr std::string_view kStandardBitmap = "setupdef.bmp";
constexpr const char* kUnknownSpace = "okänt";

// An empty value of these is the author's own choice; of all others it means that only the end
// user's machine knows.
constexpr Meaning kTextsOfTheProject[] = {Meaning::ProjectName,    Meaning::ProgramGroup,
                                          Meaning::CompanyName,    Meaning::ProductName,
                                          Meaning::ProductVersion, Meaning::ProductVersionOfFile};

bool IsTextOfTheProject(Meaning meaning)
{
    return std::ranges::find(kTextsOfTheProject, meaning) != std::end(kTextsOfTheProject);
}

const VariableName& NamedVariable(const Text& name)
{
    return *std::ranges::find(kVariableNames, name, &VariableName::name);
}

/// The longest variable that is at this place of a text, or null.
const VariableValue* VariableAt(std::string_view text, const std::vector<VariableValue>& known)
{
    const VariableValue* best = nullptr;
    for (const VariableValue& variable : known)
        if (text.starts_with(variable.Variable) &&
            (!best || variable.Variable.size() > best->Variable.size()))
            best = &variable;
    return best;
}

Text Expand(std::string_view text, const std::vector<VariableValue>& known)
{
    Text expanded;
    while (!text.empty()) {
        const VariableValue* variable = text[0] == '%' ? VariableAt(text, known) : nullptr;
        expanded += variable ? std::string_view(variable->Value) : text.substr(0, 1);
        text.remove_prefix(variable ? variable->Variable.size() : 1);
    }
    return expanded;
}

/// Where the end user's folders would be. A folder without a drive is on that of Windows.
Text ExpandFolder(const Text& folder, const std::vector<VariableValue>& known, const Host& host)
{
    const Text expanded = Expand(TrimBlanks(folder), known);
    const bool isWhole = BeginsWithDrive(expanded) || expanded.starts_with("\\\\");
    if (isWhole || expanded.starts_with('%'))
        return expanded;
    const Text drive = host.machine.GetWindowsDir().substr(0, 2);
    return RemoveDupBackslashesEx(JoinPath(drive + "\\", expanded));
}

/// The variables that have a value here, but those that are folders of the project itself.
std::vector<VariableValue> KnownVariables(const Project& project, const Host& host)
{
    std::vector<VariableValue> known = ReadVariableValues(project, host);
    std::erase_if(known, [](const VariableValue& variable) {
        const Meaning meaning = NamedVariable(variable.Variable).meaning;
        const bool isOwnFolder =
            meaning == Meaning::MainFolder || meaning == Meaning::ComponentFolder;
        const bool isUnknown = variable.Value.empty() && !IsTextOfTheProject(meaning);
        // The list shows where such a value comes from, not the value.
        return isOwnFolder || isUnknown || meaning == Meaning::OwnVariable;
    });
    return known;
}

void AddMainFolder(std::vector<VariableValue>& known, const Text& folder)
{
    known.push_back({Text(NameOf(Meaning::MainFolder)), folder});
    if (BeginsWithDrive(folder))
        known.push_back({Text(NameOf(Meaning::MainFolderDrive)), folder.substr(0, 2)});
}

void AddComponentFolders(std::vector<VariableValue>& known, const Project& project,
                         const Text& mainFolder)
{
    int number = 0;
    for (const section::FileComponent& component : project.FileComponents) {
        const Text folder = Expand(component.CompDir, known);
        const Text below = folder.empty() ? mainFolder : JoinPath(mainFolder, folder);
        known.push_back({Text(NameOf(Meaning::ComponentFolder, ++number)),
                         BeginsWithDrive(folder) ? folder : RemoveDupBackslashesEx(below)});
    }
}

} // namespace

Text PreviewMainFolder(const Project& project, const Host& host)
{
    return ExpandFolder(project.InstallDirectories.DestinationDirectory,
                        KnownVariables(project, host), host);
}

Text PreviewText(const Project& project, const Host& host, std::string_view text)
{
    if (!IsTrueText(project.InstallOptions.ExpandVariablesInDialogBoxes) ||
        text.find('%') == std::string_view::npos)
        return Text(text);
    std::vector<VariableValue> known = KnownVariables(project, host);
    const Text mainFolder = PreviewMainFolder(project, host);
    AddMainFolder(known, mainFolder);
    AddComponentFolders(known, project, mainFolder);
    return Expand(text, known);
}

Text PreviewBitmap(const Project& project, const FileSystem& files, const Text& toolFolder,
                   const Text& bitmap)
{
    const Text standard = DefaultDlgBitmap(toolFolder);
    for (const Text& path : {bitmap, project.DialogBoxes.DlgBitmap}) {
        if (!path.empty() && files.FileExists(path))
            return path;
        if (ContainsText(LowerCase(path), kStandardBitmap) && files.FileExists(standard))
            return standard;
    }
    return bitmap.empty() ? project.DialogBoxes.DlgBitmap : bitmap;
}

Text NeededSpaceText(const Project& project, const Host& host, Ask& ask)
{
    const char decimalSign = host.machine.DecimalSign();
    const Long needed = GetTotalSizeOfFilesX(
        project.Files, project.OperatingSystem.TargetOperatingSystem, decimalSign, ask);
    return SizeText(static_cast<std::uint64_t>(std::max<Long>(0, needed)), decimalSign);
}

Text FreeSpaceText(const Host& host, const Text& folder)
{
    if (!BeginsWithDrive(folder))
        return kUnknownSpace;
    try {
        const std::uint64_t bytes = host.files.FreeSpace(folder.substr(0, 2) + "\\");
        return SizeText(bytes / 1024, host.machine.DecimalSign());
    } catch (const RunError&) {
        return kUnknownSpace;
    }
}

} // namespace quillon
