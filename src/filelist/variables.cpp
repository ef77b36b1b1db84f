#include "filelist/variables.h"

#include "filelist/adding/file_version.h"
#include "formats/variable_names.h"
#include "helpers/windows_path.h"
#include "project/program_group.h"

#include <algorithm>
#include <iterator>

namespace quillon {

namespace {

// Where the end user's folders lie on a machine that has not been asked.
constexpr const char* kProgramFilesShown = "C:\\Program";
constexpr const char* kCommonFilesShown = "C:\\Program\\Vanliga filer";
constexpr const char* kDocumentsShown = "C:\\Mina dokument";

using Meaning = VariableMeaning;

/// The field of the project whose text is the variable's value.
struct ProjectValue {
    Meaning meaning;
    const Text& (*field)(const Project&);
};

#define QUILLON_FIELD(field) [](const Project& project) -> const Text& { return project.field; }

// clang-format off
constexpr ProjectValue kProjectValues[] = {
    {Meaning::MainFolder,     QUILLON_FIELD(InstallDirectories.DestinationDirectory)},
    {Meaning::ProjectName,    QUILLON_FIELD(ProjectName.ProjectName)},
    {Meaning::ProgramGroup,   QUILLON_FIELD(ProgramGroup.ProgramGroup)},
    {Meaning::CompanyName,    QUILLON_FIELD(Version.CompanyName)},
    {Meaning::ProductName,    QUILLON_FIELD(Version.ProductName)},
    {Meaning::ProductVersion, QUILLON_FIELD(Version.ProductVersion)},
    {Meaning::UserCompany,    QUILLON_FIELD(LicenseData.UserCompany)},
    {Meaning::UserName,       QUILLON_FIELD(LicenseData.UserName)},
    {Meaning::UserAddress,    QUILLON_FIELD(LicenseData.UserAddress)},
    {Meaning::UserPhone,      QUILLON_FIELD(LicenseData.UserPhone)},
    {Meaning::UserFax,        QUILLON_FIELD(LicenseData.UserFax)},
    {Meaning::UserEmail,      QUILLON_FIELD(LicenseData.Useremail)},
};
// clang-format on

#undef QUILLON_FIELD

const section::FileComponent& ComponentOf(const VariableName& variable, const Project& project)
{
    return project.FileComponents[static_cast<std::size_t>(variable.number) - 1];
}

Text BracketedOwnVariable(const section::RegPrivateVar& own, int number)
{
    const Text& content = number == 1 ? own.Reg1 : number == 2 ? own.Reg2 : own.Reg3;
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

Text ValueFromMachine(Meaning meaning, const Project& project, const Host& host)
{
    const Machine& machine = host.machine;
    switch (meaning) {
    case Meaning::SystemFolder:
        return FormatPathForDisplay(machine.GetSystemDir());
    case Meaning::WindowsFolder:
        return FormatPathForDisplay(machine.GetWindowsDir());
    case Meaning::FontFolder:
        return FormatPathForDisplay(FontFolder(machine));
    case Meaning::ApplicationDataFolder:
        return FormatPathForDisplay(machine.GetSysAppDataDirectory());
    case Meaning::LocalApplicationDataFolder:
        return FormatPathForDisplay(machine.GetSysLocalAppDataDirectory());
    case Meaning::TemplatesFolder:
        return FormatPathForDisplay(machine.GetSysTemplatesDirectory());
    case Meaning::ProgramFilesFolder:
        return kProgramFilesShown;
    case Meaning::CommonFilesFolder:
        return kCommonFilesShown;
    case Meaning::DocumentsFolder:
        return kDocumentsShown;
    case Meaning::ProductVersionOfFile:
        return VersionOfNamedFile(project, host);
    case Meaning::InstallationDate:
        return DateText(machine.Now());
    case Meaning::InstallationTime:
        return TimeTextWithSeconds(machine.Now());
    default:
        return {}; // known on the target machine only
    }
}

Text ValueOf(const VariableName& variable, const Project& project, const Host& host)
{
    if (variable.meaning == Meaning::ComponentFolder)
        return ComponentOf(variable, project).CompDir;
    if (variable.meaning == Meaning::OwnVariable)
        return BracketedOwnVariable(project.RegPrivateVar, variable.number);
    const auto* const value =
        std::ranges::find(kProjectValues, variable.meaning, &ProjectValue::meaning);
    return value != std::end(kProjectValues) ? value->field(project)
                                             : ValueFromMachine(variable.meaning, project, host);
}

bool IsListed(const VariableName& variable, const Project& project)
{
    return variable.meaning != Meaning::ComponentFolder || ComponentOf(variable, project).Comp != 0;
}

} // namespace

std::vector<VariableValue> ListVariableValues(Project& project, const Host& host)
{
    FillEmptyProgramGroup(project);
    return ReadVariableValues(project, host);
}

std::vector<VariableValue> ReadVariableValues(const Project& project, const Host& host)
{
    std::vector<VariableValue> values;
    for (const VariableName& variable : kVariableNames)
        if (IsListed(variable, project))
            values.push_back({Text(variable.name), ValueOf(variable, project, host)});
    return values;
}

} // namespace quillon
