// The vocabulary of variables: words that stand for something on the machine where the setup runs.
// The tool stores texts with their variables unexpanded; it shows values only as a preview.
#pragma once

#include "platform/host.h"
#include "project/records.h"

#include <array>
#include <string_view>
#include <vector>

namespace quillon {

enum class VariableMeaning {
    MainFolder,
    ComponentFolder,
    SystemFolder,
    WindowsFolder,
    SetupFolder,
    ProgramFilesFolder,
    CommonFilesFolder,
    FontFolder,
    DataAccessFolder,
    DocumentsFolder,
    ApplicationDataFolder,
    LocalApplicationDataFolder,
    TemplatesFolder,
    WordStartupFolder,
    MainFolderDrive,
    SetupDrive,
    ProjectName,
    ProgramGroup,
    CompanyName,
    ProductName,
    ProductVersion,
    ProductVersionOfFile,
    InstallationDate,
    InstallationTime,
    UserCompany,
    UserName,
    UserAddress,
    UserPhone,
    UserFax,
    UserEmail,
    OwnVariable,
};

/// The field of the project whose text is the variable's value.
using VariableField = const Text& (*)(const Project&);

struct Variable {
    std::string_view name;
    VariableMeaning meaning;
    VariableField field = nullptr; // null where the value comes from a machine
    int number = 0;                // of a component or of an own variable
};

// In the order of the preview.
extern const std::array<Variable, 41> kVariables;

struct VariableValue {
    Text Variable;
    Text Value;
};

/// The rows of the preview list. Kept: an empty program group takes the project's name here, in the
/// project itself and not only in the list.
std::vector<VariableValue> ListVariableValues(Project& project, const Host& host);

} // namespace quillon
