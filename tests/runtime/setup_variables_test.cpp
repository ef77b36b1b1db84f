#include "runtime/setup_variables.h"

#include "runtime/support/memory_target.h"
#include "support/memory_host.h"

#include <gtest/gtest.h>

namespace quillon {

class SetupVariablesTest : public testing::Test {
protected:
    SetupVariables Make(const Text& destination = {})
    {
        return MakeSetupVariables({setup, host.host, target, "D:\\Paket\\", destination});
    }

    test::MemoryHost host;
    test::MemoryTarget target;
    SetupInformation setup;
};

TEST_F(SetupVariablesTest, StandForWhatTheyMeanOnThisMachine)
{
    Project& project = setup.project;
    project.ProjectName.ProjectName = "Projekt";
    project.ProgramGroup.ProgramGroup = "Grupp";
    project.Version = {"Firma AB", "Produkt", "", "2.1", "", ""};
    setup.XProductVersion = "2.1.0.7";
    project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\%PRODUCTNAME\\";
    project.LicenseData = {"Kund AB", "Ulla", "Gatan 1", "08-1", "08-2", "u@k.se"};
    project.FileComponents[0].CompDir = "Data";
    project.FileComponents[1].CompDir = "%MYDOCUMENTS\\Mallar";
    const SetupVariables variables = Make();

    const std::pair<const char*, const char*> kExpected[] = {
        {"%DESTDIR", "C:\\Program\\Produkt"},
        {"%COMPDIR1", "C:\\Program\\Produkt\\Data"},
        {"%COMPDIR2", "C:\\Mina dokument\\Mallar"},
        {"%COMPDIR9", "C:\\Program\\Produkt"},
        {"%SYSDIR", "C:\\WINDOWS\\SYSTEM32"},
        {"%WINDIR", "C:\\WINDOWS"},
        {"%SRCDIR", "D:\\Paket"},
        {"%PROGRAMFILES", "C:\\Program"},
        {"%COMMONFILES", "C:\\Program\\Vanliga filer"},
        {"%FONTDIR", "C:\\WINDOWS\\Fonts"},
        {"%DAODIR", "C:\\Program\\Vanliga filer\\Microsoft Shared\\DAO"},
        {"%MYDOCUMENTS", "C:\\Mina dokument"},
        {"%APPDATADIR", "C:\\Data\\Roaming"},
        {"%LOCALAPPDATADIR", "C:\\Data\\Local"},
        {"%TEMPLATESDIR", "C:\\Data\\Mallar"},
        {"%WORDSTARTUPDIR", "C:\\Data\\Roaming\\Microsoft\\Word\\STARTUP"},
        {"%DESTDRIVE", "C:"},
        {"%SRCDRIVE", "D:"},
        {"%PROJECTNAME", "Projekt"},
        {"%PROGRAMGROUP", "Grupp"},
        {"%COMPANY", "Firma AB"},
        {"%PRODUCTNAME", "Produkt"},
        {"%PRODUCTVERSION", "2.1"},
        {"%XPRODUCTVERSION", "2.1.0.7"},
        {"%DATE", "2004-03-01"},
        {"%TIME", "14:25:36"},
        {"%USERCOMPANY", "Kund AB"},
        {"%USERNAME", "Ulla"},
        {"%USERADDRESS", "Gatan 1"},
        {"%USERPHONE", "08-1"},
        {"%USERFAX", "08-2"},
        {"%USEREMAIL", "u@k.se"},
    };
    for (const auto& [variable, value] : kExpected)
        EXPECT_EQ(variables.Expand(variable), value) << variable;
}

TEST_F(SetupVariablesTest, KnowEveryWordThatTheToolOffers)
{
    const SetupVariables variables = Make();
    for (const VariableName& variable : kVariableNames)
        EXPECT_EQ(variables.Expand(variable.name), variables.Value(variable.name)) << variable.name;
}

TEST_F(SetupVariablesTest, LetTheLongerNameWin)
{
    SetupVariables variables;
    variables.Set("%PROGRAM", "kort");
    variables.Set("%PROGRAMGROUP", "lång");
    EXPECT_EQ(variables.Expand("%PROGRAMGROUP %PROGRAMX"), "lång kortX");
}

TEST_F(SetupVariablesTest, LeaveAllElseAsText)
{
    SetupVariables variables;
    variables.Set("%DATE", "%TIME");
    variables.Set("%TIME", "fel");
    EXPECT_EQ(variables.Expand("100 % %date %OKÄND %DATE%"), "100 % %date %OKÄND %TIME%");
    EXPECT_EQ(variables.Expand(""), "");
}

TEST_F(SetupVariablesTest, MakePathsWithoutDoubleBackslashes)
{
    SetupVariables variables;
    variables.Set("%DESTDIR", "C:\\");
    EXPECT_EQ(variables.ExpandPath("%DESTDIR\\Data\\"), "C:\\Data");
    EXPECT_EQ(variables.ExpandPath("%DESTDIR"), "C:\\");
    EXPECT_EQ(variables.ExpandPath(" \\\\server\\del\\ "), "\\\\server\\del");
}

TEST_F(SetupVariablesTest, TakeTheMainFolderOfTheCommandLine)
{
    setup.project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\App";
    const SetupVariables variables = Make("E:\\Annan");
    EXPECT_EQ(variables.Value("%DESTDIR"), "E:\\Annan");
    EXPECT_EQ(variables.Value("%DESTDRIVE"), "E:");
    EXPECT_EQ(variables.Value("%COMPDIR1"), "E:\\Annan");
}

TEST_F(SetupVariablesTest, PutAMainFolderWithoutADriveOnTheDriveOfWindows)
{
    setup.project.InstallDirectories.DestinationDirectory = "\\App";
    EXPECT_EQ(Make().Value("%DESTDIR"), "C:\\App");
    setup.project.InstallDirectories.DestinationDirectory = "App\\Ett";
    EXPECT_EQ(Make().Value("%DESTDIR"), "C:\\App\\Ett");
}

TEST_F(SetupVariablesTest, AskTheRegistryForTheUserOnlyWhereThePackageSaysSo)
{
    EXPECT_EQ(Make().Value("%USERNAME"), "");
    setup.project.DialogBoxData.GetNameCompanyFromRegistry = kOn;
    EXPECT_EQ(Make().Value("%USERNAME"), "Ulla Ek");
    EXPECT_EQ(Make().Value("%USERCOMPANY"), "Firma AB");
    // What the machine knows goes before what the project proposes.
    setup.project.LicenseData.UserName = "Kund";
    EXPECT_EQ(Make().Value("%USERNAME"), "Ulla Ek");
    host.machine.owner.owner = "";
    EXPECT_EQ(Make().Value("%USERNAME"), "Kund");
}

TEST_F(SetupVariablesTest, ReadThePrivateVariables)
{
    host.machine.registry[{RegistryRoot::LocalMachine, "SOFTWARE\\Firma", "Path"}] = "E:\\Firma";
    host.machine.registry[{RegistryRoot::CurrentUser, "Firma", ""}] = "standard";
    setup.project.RegPrivateVar = {"HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Path",
                                   "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Path",
                                   "HKEY_CURRENT_USER\\Firma"};
    setup.project.InstallDirectories.DestinationDirectory = "%REG1\\App";
    const SetupVariables variables = Make();
    EXPECT_EQ(variables.Value("%REG1"), "E:\\Firma");
    EXPECT_EQ(variables.Value("%REG2"), "E:\\Firma");
    EXPECT_EQ(variables.Value("%REG3"), "standard");
    EXPECT_EQ(variables.Value("%DESTDIR"), "E:\\Firma\\App");
    EXPECT_EQ(PrivateVariableValue(host.machine, "HKEY_CURRENT_USER\\Firma :: (Standard)"),
              "standard");
    EXPECT_EQ(PrivateVariableValue(host.machine, "HKEY_CURRENT_USER\\Saknas :: x"), "");
    EXPECT_EQ(PrivateVariableValue(host.machine, "skräp"), "");
    EXPECT_EQ(PrivateVariableValue(host.machine, ""), "");
}

} // namespace quillon
