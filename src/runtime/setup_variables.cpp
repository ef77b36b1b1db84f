#include "runtime/setup_variables.h"

#include "formats/registry_marks.h"
#include "helpers/drive_path.h"
#include "helpers/windows_path.h"
#include "runtime/command_line/switches.h"

namespace quillon {

namespace {

using Meaning = VariableMeaning;

Text DriveOf(const Text& path)
{
    return path.size() >= 2 && path[1] == ':' ? path.substr(0, 2) : Text();
}

// Where Windows keeps the programs that one user has installed for himself.
Text ProgramsOfUser(const Machine& machine)
{
    return JoinPath(machine.GetSysLocalAppDataDirectory(), "Programs");
}

void SetMachineFolders(SetupVariables& variables, const VariableSources& sources)
{
    const Machine& machine = sources.host.machine;
    const bool isOwn = sources.scope == InstallScope::CurrentUser;
    const Text programs = isOwn ? ProgramsOfUser(machine) : machine.GetProgramFilesDir();
    const Text commonFiles =
        isOwn ? JoinPath(programs, "Common") : sources.target.Folder(TargetFolder::CommonFiles);
    variables.Set(Meaning::SystemFolder, machine.GetSystemDir());
    variables.Set(Meaning::WindowsFolder, machine.GetWindowsDir());
    variables.Set(Meaning::ProgramFilesFolder, programs);
    variables.Set(Meaning::CommonFilesFolder, commonFiles);
    variables.Set(Meaning::FontFolder, sources.target.Folder(TargetFolder::Fonts));
    variables.Set(Meaning::DataAccessFolder, commonFiles + "\\Microsoft Shared\\DAO");
    variables.Set(Meaning::DocumentsFolder, machine.GetMyDocumentsDir());
    variables.Set(Meaning::ApplicationDataFolder, machine.GetSysAppDataDirectory());
    variables.Set(Meaning::LocalApplicationDataFolder, machine.GetSysLocalAppDataDirectory());
    variables.Set(Meaning::TemplatesFolder, machine.GetSysTemplatesDirectory());
    variables.Set(Meaning::WordStartupFolder,
                  JoinPath(machine.GetSysAppDataDirectory(), "Microsoft\\Word\\STARTUP"));
    variables.Set(Meaning::SetupFolder, RemoveLastBackslash(sources.packageFolder));
    variables.Set(Meaning::SetupDrive, DriveOf(sources.packageFolder));
}

void SetProjectTexts(SetupVariables& variables, const VariableSources& sources)
{
    const Project& project = sources.setup.project;
    const LocalTime now = sources.host.machine.Now();
    variables.Set(Meaning::ProjectName, project.ProjectName.ProjectName);
    variables.Set(Meaning::ProgramGroup, project.ProgramGroup.ProgramGroup);
    variables.Set(Meaning::CompanyName, project.Version.CompanyName);
    variables.Set(Meaning::ProductName, project.Version.ProductName);
    variables.Set(Meaning::ProductVersion, project.Version.ProductVersion);
    variables.Set(Meaning::ProductVersionOfFile, sources.setup.XProductVersion);
    variables.Set(Meaning::InstallationDate, DateText(now));
    variables.Set(Meaning::InstallationTime, TimeTextWithSeconds(now));
}

void SetUser(SetupVariables& variables, const VariableSources& sources)
{
    const section::LicenseData user = ProposedUser(sources.setup, sources.host.machine);
    variables.Set(Meaning::UserCompany, user.UserCompany);
    variables.Set(Meaning::UserName, user.UserName);
    variables.Set(Meaning::UserAddress, user.UserAddress);
    variables.Set(Meaning::UserPhone, user.UserPhone);
    variables.Set(Meaning::UserFax, user.UserFax);
    variables.Set(Meaning::UserEmail, user.Useremail);
}

// A main folder without a drive is on the drive of Windows, so that it means the same folder
// wherever the setup was started.
Text WithDrive(const Text& folder, const Machine& machine)
{
    return IsAbsolutePath(folder)
               ? folder
               : RemoveDupBackslashesEx(JoinPath(DriveOf(machine.GetWindowsDir()) + "\\", folder));
}

void SetMainFolder(SetupVariables& variables, const VariableSources& sources)
{
    const Text& own = sources.setup.project.InstallDirectories.DestinationDirectory;
    const Text folder = sources.destination.empty()
                            ? WithDrive(variables.ExpandPath(own), sources.host.machine)
                            : sources.destination;
    variables.Set(Meaning::MainFolder, folder);
    variables.Set(Meaning::MainFolderDrive, DriveOf(folder));
}

// A component's folder may be given by variables, as an absolute path, or as a folder below the
// main one; a component without a folder goes to the main one.
void SetComponentFolders(SetupVariables& variables, const VariableSources& sources)
{
    const Text mainFolder = variables.Value(NameOf(Meaning::MainFolder));
    int number = 0;
    for (const section::FileComponent& component : sources.setup.project.FileComponents) {
        const Text folder = variables.ExpandPath(component.CompDir);
        const bool isWhole = IsAbsolutePath(folder);
        const Text below = folder.empty() ? mainFolder : JoinPath(mainFolder, folder);
        variables.Set(NameOf(Meaning::ComponentFolder, ++number), isWhole ? folder : below);
    }
}

} // namespace

void SetupVariables::Set(std::string_view name, std::string_view value)
{
    for (auto& [known, old] : values_)
        if (known == name) {
            old.assign(value);
            return;
        }
    values_.emplace_back(name, value);
}

Text SetupVariables::Value(std::string_view name) const
{
    for (const auto& [known, value] : values_)
        if (known == name)
            return value;
    return {};
}

Text SetupVariables::Expand(std::string_view text) const
{
    Text expanded;
    for (std::size_t at = 0; at < text.size();) {
        const std::pair<Text, Text>* best = nullptr;
        for (const auto& row : values_) {
            const bool fits = text[at] == '%' && text.compare(at, row.first.size(), row.first) == 0;
            if (fits && (best == nullptr || row.first.size() > best->first.size()))
                best = &row;
        }
        expanded.append(best != nullptr ? std::string_view(best->second) : text.substr(at, 1));
        at += best != nullptr ? best->first.size() : 1;
    }
    return expanded;
}

Text SetupVariables::ExpandPath(std::string_view path) const
{
    const Text expanded = RemoveDupBackslashesEx(TrimBlanks(Expand(path)));
    const bool isRoot = expanded.size() == 3 && expanded[1] == ':';
    return isRoot ? expanded : RemoveLastBackslash(expanded);
}

// As the tool previews it: what the machine knows goes before what the project proposes.
section::LicenseData ProposedUser(const SetupInformation& setup, const Machine& machine)
{
    section::LicenseData user = setup.project.LicenseData;
    RegisteredOwner owner;
    if (setup.project.DialogBoxData.GetNameCompanyFromRegistry != kOff)
        owner = machine.GetWindowsRegisteredOwner();
    if (!owner.organization.empty())
        user.UserCompany = owner.organization;
    if (!owner.owner.empty())
        user.UserName = owner.owner;
    return user;
}

SetupVariables MakeSetupVariables(const VariableSources& sources)
{
    SetupVariables variables;
    SetMachineFolders(variables, sources);
    SetProjectTexts(variables, sources);
    SetUser(variables, sources);
    const section::RegPrivateVar& own = sources.setup.project.RegPrivateVar;
    variables.Set(NameOf(Meaning::OwnVariable, 1),
                  PrivateVariableValue(sources.host.machine, own.Reg1));
    variables.Set(NameOf(Meaning::OwnVariable, 2),
                  PrivateVariableValue(sources.host.machine, own.Reg2));
    variables.Set(NameOf(Meaning::OwnVariable, 3),
                  PrivateVariableValue(sources.host.machine, own.Reg3));
    // The main folder may be given by any of the variables so far, the components' folders by it.
    SetMainFolder(variables, sources);
    SetComponentFolders(variables, sources);
    return variables;
}

Text PrivateVariableValue(const Machine& machine, std::string_view place)
{
    const std::size_t mark = place.find(kValueMark);
    const Text key = TrimBlanks(place.substr(0, mark));
    const std::size_t rootEnd = key.find('\\');
    const auto root = RootNamed(key.substr(0, rootEnd));
    if (!root || rootEnd == Text::npos)
        return {};
    const Text subKey = RemoveLastBackslash(key.substr(rootEnd + 1));
    if (mark != Text::npos) {
        const Text name = TrimBlanks(place.substr(mark + kValueMark.size()));
        const bool isDefault = EqualIgnoreCase(name, kDefaultValueName);
        return machine.ReadRegistryValue(*root, subKey, isDefault ? "" : name).value_or("");
    }
    if (const auto value = machine.ReadRegistryValue(*root, subKey, ""))
        return *value;
    return machine.ReadRegistryValue(*root, ExtractDirectory(subKey), ExtractFilename(subKey))
        .value_or("");
}

} // namespace quillon
