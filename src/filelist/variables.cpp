#include "filelist/variables.h"

#include "filelist/file_version.h"
#include "helpers/windows_path.h"

namespace quillon {

namespace {

// Where the end user's folders lie on a machine that has not been asked.
constexpr const char* kProgramFilesShown = "C:\\Program";
constexpr const char* kCommonFilesShown = "C:\\Program\\Vanliga filer";
constexpr const char* kDocumentsShown = "C:\\Mina dokument";

template <std::size_t Number>
const Text& ComponentFolder(const Project& project)
{
    return project.FileComponents[Number - 1].CompDir;
}

Text BracketedOwnVariable(const Text& content)
{
    return content.empty() ? Text() : "[" + content + "]";
}

Text VersionOfNamedFile(const Project& project, const Host& host)
{
    const Text& path = project.Version.XProductVersionFName;
    return path.empty() ? Text() : ReplaceAll(FileVersionText(host.files, path), ",", ".");
}

Text FontFolder(const Machine& machine)
{
    return JoinPath(machine.GetWindowsDir(), "Fonts");
}

Text ValueFromMachine(const Variable& variable, const Project& project, const Host& host)
{
    const Machine& machine = host.machine;
    switch (variable.meaning) {
    case VariableMeaning::SystemFolder:
        return FormatPathForDisplay(machine.GetSystemDir());
    case VariableMeaning::WindowsFolder:
        return FormatPathForDisplay(machine.GetWindowsDir());
    case VariableMeaning::FontFolder:
        return FormatPathForDisplay(FontFolder(machine));
    case VariableMeaning::ApplicationDataFolder:
        return FormatPathForDisplay(machine.GetSysAppDataDirectory());
    case VariableMeaning::LocalApplicationDataFolder:
        return FormatPathForDisplay(machine.GetSysLocalAppDataDirectory());
    case VariableMeaning::TemplatesFolder:
        return FormatPathForDisplay(machine.GetSysTemplatesDirectory());
    case VariableMeaning::ProgramFilesFolder:
        return kProgramFilesShown;
    case VariableMeaning::CommonFilesFolder:
        return kCommonFilesShown;
    case VariableMeaning::DocumentsFolder:
        return kDocumentsShown;
    case VariableMeaning::ProductVersionOfFile:
        return VersionOfNamedFile(project, host);
    case VariableMeaning::InstallationDate:
        return DateText(machine.Now());
    case VariableMeaning::InstallationTime:
        return TimeTextWithSeconds(machine.Now());
    default:
        return {}; // known on the target machine only
    }
}

Text ValueOf(const Variable& variable, const Project& project, const Host& host)
{
    if (!variable.field)
        return ValueFromMachine(variable, project, host);
    const Text& value = variable.field(project);
    return variable.meaning == VariableMeaning::OwnVariable ? BracketedOwnVariable(value) : value;
}

bool IsListed(const Variable& variable, const Project& project)
{
    return variable.meaning != VariableMeaning::ComponentFolder ||
           project.FileComponents[static_cast<std::size_t>(variable.number) - 1].Comp != 0;
}

using Meaning = VariableMeaning;

} // namespace

#define QUILLON_FIELD(field) [](const Project& project) -> const Text& { return project.field; }

// clang-format off
constinit const std::array<Variable, 41> kVariables{{
    {"%DESTDIR", Meaning::MainFolder, QUILLON_FIELD(InstallDirectories.DestinationDirectory)},
    {"%COMPDIR1", Meaning::ComponentFolder, ComponentFolder<1>, 1},
    {"%COMPDIR2", Meaning::ComponentFolder, ComponentFolder<2>, 2},
    {"%COMPDIR3", Meaning::ComponentFolder, ComponentFolder<3>, 3},
    {"%COMPDIR4", Meaning::ComponentFolder, ComponentFolder<4>, 4},
    {"%COMPDIR5", Meaning::ComponentFolder, ComponentFolder<5>, 5},
    {"%COMPDIR6", Meaning::ComponentFolder, ComponentFolder<6>, 6},
    {"%COMPDIR7", Meaning::ComponentFolder, ComponentFolder<7>, 7},
    {"%COMPDIR8", Meaning::ComponentFolder, ComponentFolder<8>, 8},
    {"%COMPDIR9", Meaning::ComponentFolder, ComponentFolder<9>, 9},
    {"%SYSDIR", Meaning::SystemFolder},
    {"%WINDIR", Meaning::WindowsFolder},
    {"%SRCDIR", Meaning::SetupFolder},
    {"%PROGRAMFILES", Meaning::ProgramFilesFolder},
    {"%COMMONFILES", Meaning::CommonFilesFolder},
    {"%FONTDIR", Meaning::FontFolder},
    {"%DAODIR", Meaning::DataAccessFolder},
    {"%MYDOCUMENTS", Meaning::DocumentsFolder},
    {"%APPDATADIR", Meaning::ApplicationDataFolder},
    {"%LOCALAPPDATADIR", Meaning::LocalApplicationDataFolder},
    {"%TEMPLATESDIR", Meaning::TemplatesFolder},
    {"%WORDSTARTUPDIR", Meaning::WordStartupFolder},
    {"%DESTDRIVE", Meaning::MainFolderDrive},
    {"%SRCDRIVE", Meaning::SetupDrive},
    {"%PROJECTNAME", Meaning::ProjectName, QUILLON_FIELD(ProjectName.ProjectName)},
    {"%PROGRAMGROUP", Meaning::ProgramGroup, QUILLON_FIELD(ProgramGroup.ProgramGroup)},
    {"%COMPANY", Meaning::CompanyName, QUILLON_FIELD(Version.CompanyName)},
    {"%PRODUCTNAME", Meaning::ProductName, QUILLON_FIELD(Version.ProductName)},
    {"%PRODUCTVERSION", Meaning::ProductVersion, QUILLON_FIELD(Version.ProductVersion)},
    {"%XPRODUCTVERSION", Meaning::ProductVersionOfFile},
    {"%DATE", Meaning::InstallationDate},
    {"%TIME", Meaning::InstallationTime},
    {"%USERCOMPANY", Meaning::UserCompany, QUILLON_FIELD(LicenseData.UserCompany)},
    {"%USERNAME", Meaning::UserName, QUILLON_FIELD(LicenseData.UserName)},
    {"%USERADDRESS", Meaning::UserAddress, QUILLON_FIELD(LicenseData.UserAddress)},
    {"%USERPHONE", Meaning::UserPhone, QUILLON_FIELD(LicenseData.UserPhone)},
    {"%USERFAX", Meaning::UserFax, QUILLON_FIELD(LicenseData.UserFax)},
    {"%USEREMAIL", Meaning::UserEmail, QUILLON_FIELD(LicenseData.Useremail)},
    {"%REG1", Meaning::OwnVariable, QUILLON_FIELD(RegPrivateVar.Reg1), 1},
    {"%REG2", Meaning::OwnVariable, QUILLON_FIELD(RegPrivateVar.Reg2), 2},
    {"%REG3", Meaning::OwnVariable, QUILLON_FIELD(RegPrivateVar.Reg3), 3},
}};
// clang-format on

#undef QUILLON_FIELD

std::vector<VariableValue> ListVariableValues(Project& project, const Host& host)
{
    if (project.ProgramGroup.ProgramGroup.empty())
        project.ProgramGroup.ProgramGroup = project.ProjectName.ProjectName;

    std::vector<VariableValue> values;
    for (const Variable& variable : kVariables)
        if (IsListed(variable, project))
            values.push_back({Text(variable.name), ValueOf(variable, project, host)});
    return values;
}

} // namespace quillon
