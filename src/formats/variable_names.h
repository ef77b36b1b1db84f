// The vocabulary of variables: words in a project's texts that are replaced by something on the
// machine where the setup runs. The tool offers these and the setup knows these, by this one list.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

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

struct VariableName {
    std::string_view name;
    VariableMeaning meaning;
    int number = 0; // of a component or of an own variable
};

// In the order of the tool's preview.
inline constexpr std::array<VariableName, 41> kVariableNames{{
    {"%DESTDIR", VariableMeaning::MainFolder},
    {"%COMPDIR1", VariableMeaning::ComponentFolder, 1},
    {"%COMPDIR2", VariableMeaning::ComponentFolder, 2},
    {"%COMPDIR3", VariableMeaning::ComponentFolder, 3},
    {"%COMPDIR4", VariableMeaning::ComponentFolder, 4},
    {"%COMPDIR5", VariableMeaning::ComponentFolder, 5},
    {"%COMPDIR6", VariableMeaning::ComponentFolder, 6},
    {"%COMPDIR7", VariableMeaning::ComponentFolder, 7},
    {"%COMPDIR8", VariableMeaning::ComponentFolder, 8},
    {"%COMPDIR9", VariableMeaning::ComponentFolder, 9},
    {"%SYSDIR", VariableMeaning::SystemFolder},
    {"%WINDIR", VariableMeaning::WindowsFolder},
    {"%SRCDIR", VariableMeaning::SetupFolder},
    {"%PROGRAMFILES", VariableMeaning::ProgramFilesFolder},
    {"%COMMONFILES", VariableMeaning::CommonFilesFolder},
    {"%FONTDIR", VariableMeaning::FontFolder},
    {"%DAODIR", VariableMeaning::DataAccessFolder},
    {"%MYDOCUMENTS", VariableMeaning::DocumentsFolder},
    {"%APPDATADIR", VariableMeaning::ApplicationDataFolder},
    {"%LOCALAPPDATADIR", VariableMeaning::LocalApplicationDataFolder},
    {"%TEMPLATESDIR", VariableMeaning::TemplatesFolder},
    {"%WORDSTARTUPDIR", VariableMeaning::WordStartupFolder},
    {"%DESTDRIVE", VariableMeaning::MainFolderDrive},
    {"%SRCDRIVE", VariableMeaning::SetupDrive},
    {"%PROJECTNAME", VariableMeaning::ProjectName},
    {"%PROGRAMGROUP", VariableMeaning::ProgramGroup},
    {"%COMPANY", VariableMeaning::CompanyName},
    {"%PRODUCTNAME", VariableMeaning::ProductName},
    {"%PRODUCTVERSION", VariableMeaning::ProductVersion},
    {"%XPRODUCTVERSION", VariableMeaning::ProductVersionOfFile},
    {"%DATE", VariableMeaning::InstallationDate},
    {"%TIME", VariableMeaning::InstallationTime},
    {"%USERCOMPANY", VariableMeaning::UserCompany},
    {"%USERNAME", VariableMeaning::UserName},
    {"%USERADDRESS", VariableMeaning::UserAddress},
    {"%USERPHONE", VariableMeaning::UserPhone},
    {"%USERFAX", VariableMeaning::UserFax},
    {"%USEREMAIL", VariableMeaning::UserEmail},
    {"%REG1", VariableMeaning::OwnVariable, 1},
    {"%REG2", VariableMeaning::OwnVariable, 2},
    {"%REG3", VariableMeaning::OwnVariable, 3},
}};

/// `number` is that of a component or of an own variable.
constexpr std::string_view NameOf(VariableMeaning meaning, int number = 0)
{
    return std::ranges::find_if(kVariableNames,
                                [&](const VariableName& variable) {
                                    return variable.meaning == meaning && variable.number == number;
                                })
        ->name;
}

} // namespace quillon
