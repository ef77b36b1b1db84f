#include "actions/preview_page.h"
#include "formats/install_drives.h"

#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

namespace quillon::test {
namespace {

class PreviewPage : public testing::Test {
protected:
    PreviewPage()
    {
        project.ProjectName.ProjectName = "Receptboken";
        project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\Recept";
        project.Version.CompanyName = "Firma AB";
    }

    MemoryHost machine;
    Project project;
};

TEST_F(PreviewPage, ExpandsWhatIsKnownHere)
{
    project.FileComponents[0].Comp = 1;
    project.FileComponents[0].CompDir = "\\Ordbok";
    project.LicenseData.UserName = "Ulla";
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"100 % bra", "100 % bra"},
        {"Välkommen till %PROJECTNAME!", "Välkommen till Receptboken!"},
        {"%PROJECTNAMEX", "ReceptbokenX"},
        {"%projectname", "%projectname"},
        {"%COMPANY och %PRODUCTNAME.", "Firma AB och ."},
        {"%PROGRAMGROUP", ""},
        {"%DESTDIR", "C:\\Program\\Recept"},
        {"%DESTDRIVE", "C:"},
        {"%COMPDIR1", "C:\\Program\\Recept\\Ordbok"},
        {"%COMPDIR2", "C:\\Program\\Recept"},
        {"%WINDIR", "C:\\Windows"},
        {"%DATE", "2004-03-01"},
        {"%USERNAME", "Ulla"},
        // Known on the end user's machine only.
        {"%USERCOMPANY", "%USERCOMPANY"},
        {"%SRCDIR, %DAODIR, %REG1", "%SRCDIR, %DAODIR, %REG1"},
    };
    for (const auto& [text, shown] : cases)
        EXPECT_EQ(PreviewText(project, machine.host, text), shown) << text;
    EXPECT_EQ(project.ProgramGroup.ProgramGroup, "");
}

TEST_F(PreviewPage, ExpandsNothingTwice)
{
    project.ProjectName.ProjectName = "%COMPANY";
    EXPECT_EQ(PreviewText(project, machine.host, "%PROJECTNAME"), "%COMPANY");
}

TEST_F(PreviewPage, LeavesTextsAloneWhereTheProjectDoes)
{
    for (const Text& off : {Text("0"), Text("False")}) {
        project.InstallOptions.ExpandVariablesInDialogBoxes = off;
        EXPECT_EQ(PreviewText(project, machine.host, "%PROJECTNAME"), "%PROJECTNAME");
    }
    project.InstallOptions.ExpandVariablesInDialogBoxes = Text("-1");
    EXPECT_EQ(PreviewText(project, machine.host, "%PROJECTNAME"), "Receptboken");
}

TEST_F(PreviewPage, ProposesTheMainFolder)
{
    const std::pair<Text, const char*> cases[] = {
        {"C:\\Data\\App", "C:\\Data\\App"},
        {"%PROGRAMFILES\\App", "C:\\Program\\App"},
        {"%MYDOCUMENTS", "C:\\Mina dokument"},
        {"%REG1\\App", "%REG1\\App"},
        {"\\App", "C:\\App"},
        {"App", "C:\\App"},
        {"", "C:\\"},
    };
    for (const auto& [folder, shown] : cases) {
        project.InstallDirectories.DestinationDirectory = folder;
        // Folders are expanded whatever holds for texts.
        project.InstallOptions.ExpandVariablesInDialogBoxes = Text("0");
        EXPECT_EQ(PreviewMainFolder(project, machine.host), shown) << folder;
    }
}

TEST_F(PreviewPage, ChoosesThePicture)
{
    machine.files.Put("C:\\egen.bmp", "BM");
    machine.files.Put("C:\\delad.bmp", "BM");
    machine.files.Put("C:\\Quillon\\Res\\SetupDef.bmp", "BM");
    const Text standard = "C:\\Quillon\\Res\\SetupDef.bmp";
    struct Case {
        Text own;
        Text shared;
        Text shown;
    };
    const Case cases[] = {
        {"C:\\egen.bmp", "C:\\delad.bmp", "C:\\egen.bmp"},
        {"", "C:\\delad.bmp", "C:\\delad.bmp"},
        {"C:\\borta.bmp", "C:\\delad.bmp", "C:\\delad.bmp"},
        {"C:\\borta.bmp", "", "C:\\borta.bmp"},
        {"", "C:\\borta.bmp", "C:\\borta.bmp"},
        {"", "", ""},
        // Chosen when the tool lay elsewhere.
        {"E:\\Gamla\\Res\\SETUPDEF.BMP", "C:\\delad.bmp", standard},
        {"", "E:\\Gamla\\Res\\SetupDef.bmp", standard},
    };
    for (const Case& one : cases) {
        project.DialogBoxes.DlgBitmap = one.shared;
        EXPECT_EQ(PreviewBitmap(project, machine.files, "C:\\Quillon", one.own), one.shown)
            << one.own << ", " << one.shared;
    }
}

TEST_F(PreviewPage, SumsUpWhatTheFilesNeed)
{
    for (const char* size : {"120", "30"})
        project.Files.rows.emplace_back()[Size] = size;
    ScriptedAsk ask;
    EXPECT_EQ(NeededSpaceText(project, machine.host, ask), "150 kB");
    project.Files.rows.clear();
    EXPECT_EQ(NeededSpaceText(project, machine.host, ask), "0 kB");
}

TEST_F(PreviewPage, TellsWhatIsFree)
{
    machine.files.capacities["c:\\"] = 20'480'000;
    EXPECT_EQ(FreeSpaceText(machine.host, "C:\\finns\\inte\\än"), "19,5 MB");
    EXPECT_EQ(FreeSpaceText(machine.host, "%REG1\\App"), "okänt");
    EXPECT_EQ(FreeSpaceText(machine.host, ""), "okänt");
}

TEST_F(PreviewPage, OffersDrivesToInstallOn)
{
    for (char letter = 'a'; letter <= 'z'; ++letter)
        machine.files.driveKinds[Text(1, letter) + ":\\"] = DriveKind::NoRoot;
    machine.files.driveKinds["a:\\"] = DriveKind::Removable;
    machine.files.driveKinds["c:\\"] = DriveKind::Fixed;
    machine.files.driveKinds["d:\\"] = DriveKind::Cd;
    machine.files.driveKinds["e:\\"] = DriveKind::Removable;
    machine.files.driveKinds["z:\\"] = DriveKind::Remote;
    EXPECT_EQ(InstallDrives(machine.files), (std::vector<Text>{"C:\\", "E:\\", "Z:\\"}));
}

} // namespace
} // namespace quillon::test
