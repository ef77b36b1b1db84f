#include "filelist/variables.h"

#include "formats/variable_names.h"
#include "support/memory_host.h"
#include "support/program_file.h"

#include <gmock/gmock.h>

namespace quillon::test {

namespace {

std::map<Text, Text> ValuesByName(Project& project, const Host& host)
{
    std::map<Text, Text> values;
    for (const VariableValue& value : ListVariableValues(project, host))
        values[value.Variable] = value.Value;
    return values;
}

// A machine that gives all its folders in capitals.
class LoudMachine : public FixedMachine {
public:
    Text GetSysAppDataDirectory() const override { return "C:\\DATA\\ROAMING"; }
    Text GetSysLocalAppDataDirectory() const override { return "C:\\DATA\\LOCAL"; }
    Text GetSysTemplatesDirectory() const override { return "C:\\DATA\\MALLAR"; }
};

} // namespace

TEST(ListVariableValues, HasNoComponentsWithoutOneInUse)
{
    MemoryHost machine;
    Project project;
    const auto values = ListVariableValues(project, machine.host);
    ASSERT_EQ(values.size(), kVariableNames.size() - kComponentCount);
    EXPECT_EQ(values[0].Variable, "%DESTDIR");
    EXPECT_EQ(values[1].Variable, "%SYSDIR");
}

TEST(ListVariableValues, ListsTickedComponentsBehindTheMainFolder)
{
    MemoryHost machine;
    Project project;
    project.FileComponents[1] = {.Comp = 1, .CompDir = "%DESTDIR\\Två"};
    project.FileComponents[2] = {.Comp = 0, .CompDir = "%DESTDIR\\Tre"};
    project.FileComponents[8] = {.Comp = 1, .CompDir = "%DESTDIR\\Nio"};
    const auto values = ListVariableValues(project, machine.host);
    EXPECT_EQ(values[1].Variable, "%COMPDIR2");
    EXPECT_EQ(values[1].Value, "%DESTDIR\\Två");
    EXPECT_EQ(values[2].Variable, "%COMPDIR9");
    EXPECT_EQ(values[2].Value, "%DESTDIR\\Nio");
    EXPECT_EQ(values[3].Variable, "%SYSDIR");
}

TEST(ListVariableValues, ShowsThisMachineInDisplayCase)
{
    MemoryFiles files;
    LoudMachine machine;
    Project project;
    auto values = ValuesByName(project, Host{files, machine});
    EXPECT_EQ(values["%SYSDIR"], "C:\\Windows\\System32");
    EXPECT_EQ(values["%WINDIR"], "C:\\Windows");
    EXPECT_EQ(values["%FONTDIR"], "C:\\Windows\\Fonts");
    EXPECT_EQ(values["%APPDATADIR"], "C:\\Data\\Roaming");
    EXPECT_EQ(values["%LOCALAPPDATADIR"], "C:\\Data\\Local");
    EXPECT_EQ(values["%TEMPLATESDIR"], "C:\\Data\\Mallar");
    EXPECT_EQ(values["%PROGRAMFILES"], "C:\\Program");
    EXPECT_EQ(values["%COMMONFILES"], "C:\\Program\\Vanliga filer");
    EXPECT_EQ(values["%MYDOCUMENTS"], "C:\\Mina dokument");
    EXPECT_EQ(values["%DATE"], "2004-03-01");
    EXPECT_EQ(values["%TIME"], "14:25:36");
}

TEST(ListVariableValues, ShowsNothingForWhatOnlyTheTargetKnows)
{
    MemoryHost machine;
    Project project;
    auto values = ValuesByName(project, machine.host);
    for (const char* const name :
         {"%SRCDIR", "%DAODIR", "%WORDSTARTUPDIR", "%DESTDRIVE", "%SRCDRIVE", "%XPRODUCTVERSION"}) {
        ASSERT_EQ(values.count(name), 1U) << name;
        EXPECT_EQ(values[name], "") << name;
    }
}

TEST(ListVariableValues, ShowsTheProjectsOwnTexts)
{
    MemoryHost machine;
    Project project;
    project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\App";
    project.ProjectName.ProjectName = "Projektet";
    project.ProgramGroup.ProgramGroup = "Gruppen";
    project.Version = {.CompanyName = "Firma", .ProductName = "Produkt", .ProductVersion = "1.2"};
    project.LicenseData = {"Bolag", "Namn", "Adress", "Tfn", "Fax", "Epost"};
    auto values = ValuesByName(project, machine.host);
    EXPECT_EQ(values["%DESTDIR"], "%PROGRAMFILES\\App") << "never expanded";
    EXPECT_EQ(values["%PROJECTNAME"], "Projektet");
    EXPECT_EQ(values["%PROGRAMGROUP"], "Gruppen");
    EXPECT_EQ(values["%COMPANY"], "Firma");
    EXPECT_EQ(values["%PRODUCTNAME"], "Produkt");
    EXPECT_EQ(values["%PRODUCTVERSION"], "1.2");
    EXPECT_EQ(values["%USERCOMPANY"], "Bolag");
    EXPECT_EQ(values["%USERNAME"], "Namn");
    EXPECT_EQ(values["%USERADDRESS"], "Adress");
    EXPECT_EQ(values["%USERPHONE"], "Tfn");
    EXPECT_EQ(values["%USERFAX"], "Fax");
    EXPECT_EQ(values["%USEREMAIL"], "Epost");
}

TEST(ListVariableValues, ReadsTheVersionOfTheNamedFileWithPoints)
{
    MemoryHost machine;
    Project project;
    machine.files.Put("C:\\a.exe", MakeProgramFile({.languages = {{{"FileVersion", "1,2,0,5"}}}}));
    machine.files.Put("C:\\a.txt", "no program");
    const auto versionOf = [&](const Text& path) {
        project.Version.XProductVersionFName = path;
        return ValuesByName(project, machine.host)["%XPRODUCTVERSION"];
    };
    EXPECT_EQ(versionOf("C:\\a.exe"), "1.2.0.5");
    EXPECT_EQ(versionOf("C:\\a.txt"), "");
    EXPECT_EQ(versionOf("C:\\gone.exe"), "");
}

TEST(ListVariableValues, PutsOwnVariablesInBracketsUnlessEmpty)
{
    MemoryHost machine;
    Project project;
    project.RegPrivateVar.Reg1 = "HKLM\\Software\\A :: B";
    project.RegPrivateVar.Reg3 = "c";
    auto values = ValuesByName(project, machine.host);
    EXPECT_EQ(values["%REG1"], "[HKLM\\Software\\A :: B]");
    EXPECT_EQ(values["%REG2"], "") << "not []";
    EXPECT_EQ(values["%REG3"], "[c]");
}

TEST(ListVariableValues, FillsAnEmptyProgramGroupInTheProjectItself)
{
    MemoryHost machine;
    Project project;
    project.ProjectName.ProjectName = "Projektet";
    EXPECT_EQ(ValuesByName(project, machine.host)["%PROGRAMGROUP"], "Projektet");
    EXPECT_EQ(project.ProgramGroup.ProgramGroup, "Projektet");
}

} // namespace quillon::test
