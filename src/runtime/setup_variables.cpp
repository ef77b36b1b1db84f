#include "runtime/setup_variables.h"

#include "helpers/windows_path.h"
#include "runtime/switches.h"

namespace quillon {

namespace {

constexpr std::string_view kValueMark = " :: ";

Text DriveOf(const Text& path)
{
    return path.size() >= 2 && path[1] == ':' ? path.substr(0, 2) : Text();
}

void SetMachineFolders(SetupVariables& variables, const VariableSources& sources)
{
    const Machine& machine = sources.host.machine;
    const Text commonFiles = sources.target.Folder(TargetFolder::CommonFiles);
    variables.Set("%SYSDIR", machine.GetSystemDir());
    variables.Set("%WINDIR", machine.GetWindowsDir());
    variables.Set("%PROGRAMFILES", machine.GetProgramFilesDir());
    variables.Set("%COMMONFILES", commonFiles);
    variables.Set("%FONTDIR", sources.target.Folder(TargetFolder::Fonts));
    variables.Set("%DAODIR", commonFiles + "\\Microsoft Shared\\DAO");
    variables.Set("%MYDOCUMENTS", machine.GetMyDocumentsDir());
    variables.Set("%APPDATADIR", machine.GetSysAppDataDirectory());
    variables.Set("%LOCALAPPDATADIR", machine.GetSysLocalAppDataDirectory());
    variables.Set("%TEMPLATESDIR", machine.GetSysTemplatesDirectory());
    variables.Set("%WORDSTARTUPDIR",
                  JoinPath(machine.GetSysAppDataDirectory(), "Microsoft\\Word\\STARTUP"));
    variables.Set("%SRCDIR", RemoveLastBackslash(sources.packageFolder));
    variables.Set("%SRCDRIVE", DriveOf(sources.packageFolder));
}

void SetProjectTexts(SetupVariables& variables, const VariableSources& sources)
{
    const Project& project = sources.setup.project;
    const LocalTime now = sources.host.machine.Now();
    variables.Set("%PROJECTNAME", project.ProjectName.ProjectName);
    variables.Set("%PROGRAMGROUP", project.ProgramGroup.ProgramGroup);
    variables.Set("%COMPANY", project.Version.CompanyName);
    variables.Set("%PRODUCTNAME", project.Version.ProductName);
    variables.Set("%PRODUCTVERSION", project.Version.ProductVersion);
    variables.Set("%XPRODUCTVERSION", sources.setup.XProductVersion);
    variables.Set("%DATE", DateText(now));
    variables.Set("%TIME", TimeTextWithSeconds(now));
}

void SetUser(SetupVariables& variables, const VariableSources& sources)
{
    const section::LicenseData& user = sources.setup.project.LicenseData;
    RegisteredOwner owner;
    if (sources.setup.project.DialogBoxData.GetNameCompanyFromRegistry != kOff)
        owner = sources.host.machine.GetWindowsRegisteredOwner();
    variables.Set("%USERCOMPANY", user.UserCompany.empty() ? owner.organization : user.UserCompany);
    variables.Set("%USERNAME", user.UserName.empty() ? owner.owner : user.UserName);
    variables.Set("%USERADDRESS", user.UserAddress);
    variables.Set("%USERPHONE", user.UserPhone);
    variables.Set("%USERFAX", user.UserFax);
    variables.Set("%USEREMAIL", user.Useremail);
}

// A main folder without a drive lies on the drive of Windows, so that it means the same folder
// wherever the setup was started.
Text WithDrive(const Text& folder, const Machine& machine)
{
    return IsWholePath(folder)
               ? folder
               : RemoveDupBackslashesEx(JoinPath(DriveOf(machine.GetWindowsDir()) + "\\", folder));
}

void SetMainFolder(SetupVariables& variables, const VariableSources& sources)
{
    const Text& own = sources.setup.project.InstallDirectories.DestinationDirectory;
    const Text folder = sources.destination.empty()
                            ? WithDrive(variables.ExpandPath(own), sources.host.machine)
                            : sources.destination;
    variables.Set("%DESTDIR", folder);
    variables.Set("%DESTDRIVE", DriveOf(folder));
}

// A component's folder may be told by variables, as a whole path, or as a folder below the main
// one; a component without a folder goes to the main one.
void SetComponentFolders(SetupVariables& variables, const VariableSources& sources)
{
    const Text mainFolder = variables.Value("%DESTDIR");
    int number = 0;
    for (const section::FileComponent& component : sources.setup.project.FileComponents) {
        const Text folder = variables.ExpandPath(component.CompDir);
        const bool isWhole = IsWholePath(folder);
        const Text below = folder.empty() ? mainFolder : JoinPath(mainFolder, folder);
        variables.Set("%COMPDIR" + NumberText(++number), isWhole ? folder : below);
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

SetupVariables MakeSetupVariables(const VariableSources& sources)
{
    SetupVariables variables;
    SetMachineFolders(variables, sources);
    SetProjectTexts(variables, sources);
    SetUser(variables, sources);
    const section::RegPrivateVar& own = sources.setup.project.RegPrivateVar;
    variables.Set("%REG1", PrivateVariableValue(sources.host.machine, own.Reg1));
    variables.Set("%REG2", PrivateVariableValue(sources.host.machine, own.Reg2));
    variables.Set("%REG3", PrivateVariableValue(sources.host.machine, own.Reg3));
    // The main folder may be told by any of the variables so far, the components' folders by it.
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
        const bool isDefault = EqualIgnoreCase(name, "(Standard)");
        return machine.ReadRegistryValue(*root, subKey, isDefault ? "" : name).value_or("");
    }
    if (const auto value = machine.ReadRegistryValue(*root, subKey, ""))
        return *value;
    return machine.ReadRegistryValue(*root, ExtractDirectory(subKey), ExtractFilename(subKey))
        .value_or("");
}

} // namespace quillon
