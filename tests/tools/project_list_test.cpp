#include "tools/project_list.h"

#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kSettings = "C:\\Data\\Roaming\\Quillon\\QUILLON.INI";

std::string ProjectBytes(const std::string& name, const std::string& media = "2")
{
    return "[ProjectName]\r\nProjectName=" + name + "\r\n[Media]\r\nTargetMedia=" + media +
           "\r\n[FileListInfo]\r\nFiles=7\r\nTotalSize=1536\r\n";
}

class ProjectListTest : public testing::Test {
protected:
    ProjectListTest()
    {
        machine.files.Put("C:\\A\\a.qnp", ProjectBytes("Alfa"), {2003, 5, 6, 7, 8, 9});
        machine.files.Put("C:\\B\\b.qnp", ProjectBytes("Beta", "1"));
        machine.files.Put("C:\\C\\c.qnp", ProjectBytes("Gamma", "4"));
    }

    void PutSettings(const std::string& bytes) { machine.files.Put(kSettings, bytes); }
    ProjectList Read() const { return ReadProjectList(machine.host, kSettings); }
    std::vector<Text> Names() const
    {
        std::vector<Text> names;
        for (const ListedProject& listed : Read().projects)
            names.push_back(listed.name);
        return names;
    }
    std::optional<ListedProject> Add(const std::vector<ListedProject>& listed = {})
    {
        return ListOpenProject(project, state, listed, machine.host, ask);
    }

    MemoryHost machine;
    ScriptedAsk ask;
    Project project;
    OpenProjectState state;
};

TEST_F(ProjectListTest, TellsOfEachProjectWhatItsFileTells)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=1\r\nPF1=C:\\A\\a.qnp\r\n");
    const ProjectList list = Read();
    ASSERT_THAT(list.projects, SizeIs(1));
    const ListedProject& row = list.projects[0];
    EXPECT_EQ(row.name, "Alfa");
    EXPECT_EQ(row.platform, "Win32");
    EXPECT_EQ(row.medium, "CD/DVD");
    EXPECT_EQ(row.fileCount, "7");
    EXPECT_EQ(row.megabytes, "1,5");
    EXPECT_EQ(row.fileName, "a.qnp");
    EXPECT_EQ(row.date, "2003-05-06");
    EXPECT_EQ(row.path, "C:\\A\\a.qnp");
}

TEST_F(ProjectListTest, HasItsColumnsInOrder)
{
    std::vector<Text> headers;
    for (const ProjectColumn& column : kProjectColumns)
        headers.push_back(column.header);
    EXPECT_THAT(headers, ElementsAre("Namn", "Plattform", "Media", "Antal filer", "Storlek (MB)",
                                     "Projektfil", "Datum", "Path"));
}

TEST_F(ProjectListTest, NamesTheMedium)
{
    const std::pair<const char*, const char*> kCases[] = {
        {"1", "Diskett"}, {"2", "CD/DVD"}, {"3", "CD/DVD"}, {"4", "Internet"},
        {"", "CD/DVD"},   {"0", "CD/DVD"}, {"5", "CD/DVD"}, {"-1", "CD/DVD"}};
    for (const auto& [media, name] : kCases) {
        machine.files.Put("C:\\A\\a.qnp", ProjectBytes("Alfa", media));
        PutSettings("[ProjectManager]\r\nProjectFiles=1\r\nPF1=C:\\A\\a.qnp\r\n");
        EXPECT_EQ(Read().projects.at(0).medium, name) << media;
    }
}

TEST_F(ProjectListTest, ShowsEmptyColumnsForAFileWithoutKeys)
{
    machine.files.Put("C:\\A\\a.qnp", "");
    PutSettings("[ProjectManager]\r\nProjectFiles=1\r\nPF1=C:\\A\\a.qnp\r\n");
    const ListedProject row = Read().projects.at(0);
    EXPECT_EQ(row.name, "");
    EXPECT_EQ(row.fileCount, "");
    EXPECT_EQ(row.megabytes, "0,0");
}

TEST_F(ProjectListTest, EndsAtTheFirstEmptyEntry)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=9\r\nPF1=C:\\A\\a.qnp\r\nPF3=C:\\B\\b.qnp\r\n");
    EXPECT_THAT(Names(), ElementsAre("Alfa"));
}

TEST_F(ProjectListTest, GoesOnBehindADamagedEntry)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=2\r\nPF1=utf-8:C:\\\xD0.qnp\r\n"
                "PF2=C:\\A\\a.qnp\r\n");
    EXPECT_THAT(Names(), ElementsAre("Alfa"));
}

TEST_F(ProjectListTest, ReadsNoMoreThanItsCount)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=1\r\nPF1=C:\\A\\a.qnp\r\nPF2=C:\\B\\b.qnp\r\n");
    EXPECT_THAT(Names(), ElementsAre("Alfa"));
    PutSettings("[ProjectManager]\r\nPF1=C:\\A\\a.qnp\r\n");
    EXPECT_THAT(Names(), IsEmpty());
    PutSettings("[ProjectManager]\r\nProjectFiles=-3\r\nPF1=C:\\A\\a.qnp\r\n");
    EXPECT_THAT(Names(), IsEmpty());
    PutSettings("[ProjectManager]\r\nProjectFiles=99999999999\r\nPF1=C:\\A\\a.qnp\r\n");
    EXPECT_THAT(Names(), ElementsAre("Alfa"));
}

TEST_F(ProjectListTest, PassesOverWhatHasGoneAndForgetsItWhenSaved)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=3\r\nPF1=C:\\A\\a.qnp\r\nPF2=C:\\gone.qnp\r\n"
                "PF3=C:\\B\\b.qnp\r\n");
    EXPECT_THAT(Names(), ElementsAre("Alfa", "Beta"));
    const ProjectList list = Read();
    SaveProjectList(machine.files, kSettings, list, list.projects);
    EXPECT_THAT(Read().paths, ElementsAre("C:\\A\\a.qnp", "C:\\B\\b.qnp"));
}

// A stick that is out, a share that is offline, a letter that is not mapped.
TEST_F(ProjectListTest, KeepsWhatIsOnlyAwayAtItsPlace)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=7\r\nPF1=E:\\P\\stick.qnp\r\n"
                "PF2=C:\\A\\a.qnp\r\nPF3=\\\\server\\share\\s.qnp\r\nPF4=F:\\X\\f.qnp\r\n"
                "PF5=C:\\A\\gone.qnp\r\nPF6=C:\\B\\b.qnp\r\nPF7=C:/away/w.qnp\r\n");
    EXPECT_THAT(Names(), ElementsAre("Alfa", "Beta")) << "they are hidden meanwhile";
    const ProjectList list = Read();
    SaveProjectList(machine.files, kSettings, list, list.projects);
    EXPECT_THAT(Read().paths,
                ElementsAre("E:\\P\\stick.qnp", "C:\\A\\a.qnp", "\\\\server\\share\\s.qnp",
                            "F:\\X\\f.qnp", "C:\\B\\b.qnp", "C:/away/w.qnp"))
        << "only a file that has gone from its folder is forgotten";
    machine.files.Put("F:\\X\\f.qnp", ProjectBytes("Fi"));
    EXPECT_THAT(Names(), ElementsAre("Alfa", "Fi", "Beta"));
}

TEST_F(ProjectListTest, KeepsWhatIsAwayWhereRowsGoAndCome)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=3\r\nPF1=C:\\A\\a.qnp\r\n"
                "PF2=E:\\P\\stick.qnp\r\nPF3=C:\\B\\b.qnp\r\n");
    const ProjectList list = Read();
    SaveProjectList(machine.files, kSettings, list, {list.projects[1], {.path = "C:\\C\\c.qnp"}});
    EXPECT_THAT(Read().paths, ElementsAre("E:\\P\\stick.qnp", "C:\\B\\b.qnp", "C:\\C\\c.qnp"));
}

TEST_F(ProjectListTest, KeepsWhatComesBackWhileTheListIsOpen)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=2\r\nPF1=E:\\stick.qnp\r\n"
                "PF2=C:\\A\\a.qnp\r\n");
    const ProjectList list = Read();
    machine.files.Put("E:\\stick.qnp", ProjectBytes("Sticka"));
    SaveProjectList(machine.files, kSettings, list, list.projects);
    EXPECT_THAT(Names(), ElementsAre("Sticka", "Alfa"));
}

TEST_F(ProjectListTest, KeepsWhatLiesInTheRootOfADriveThatIsAway)
{
    struct FilesWithoutStick : MemoryFiles {
        bool DirExists(const Text& path) const override
        {
            return path != "E:\\" && MemoryFiles::DirExists(path);
        }
    };
    FilesWithoutStick files;
    const Host host{files, machine.machine};
    files.Put(kSettings, "[ProjectManager]\r\nProjectFiles=2\r\nPF1=E:\\stick.qnp\r\n"
                         "PF2=C:\\gone.qnp\r\n");
    SaveProjectList(files, kSettings, ReadProjectList(host, kSettings), {});
    EXPECT_THAT(ReadProjectList(host, kSettings).paths, ElementsAre("E:\\stick.qnp"));
}

TEST_F(ProjectListTest, LetsGoWhatIsAwayWhereAnotherProgramHasForgottenIt)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=2\r\nPF1=E:\\stick.qnp\r\n"
                "PF2=C:\\A\\a.qnp\r\n");
    const ProjectList list = Read();
    PutSettings("[ProjectManager]\r\nProjectFiles=1\r\nPF1=C:\\A\\a.qnp\r\n");
    SaveProjectList(machine.files, kSettings, list, list.projects);
    EXPECT_THAT(Read().paths, ElementsAre("C:\\A\\a.qnp"));
}

TEST_F(ProjectListTest, ForgetsAnEntryThatIsNoPath)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=3\r\nPF1=utf-8:C:\\\xD0.qnp\r\n"
                "PF2=lost.qnp\r\nPF3=C:\\A\\a.qnp\r\n");
    const ProjectList list = Read();
    SaveProjectList(machine.files, kSettings, list, list.projects);
    EXPECT_THAT(Read().paths, ElementsAre("C:\\A\\a.qnp"));
}

TEST_F(ProjectListTest, IsWrittenInItsOrderAndLeavesAllElse)
{
    PutSettings("[Options]\r\nCBarsCurrentStyle=2\r\n");
    ProjectList list = Read();
    list.projects = {{.path = "C:\\B\\b.qnp"}, {.path = "C:\\A\\a.qnp"}};
    SaveProjectList(machine.files, kSettings, Read(), list.projects);
    EXPECT_EQ(machine.files.Get(kSettings),
              "[Options]\r\nCBarsCurrentStyle=2\r\n[ProjectManager]\r\nProjectFiles=2\r\n"
              "PF1=C:\\B\\b.qnp\r\nPF2=C:\\A\\a.qnp\r\n");
    EXPECT_FALSE(machine.files.FileExists(Text(kSettings) + ".lock"));
}

TEST_F(ProjectListTest, IsWrittenWhereThereIsNoSettingsFileYet)
{
    SaveProjectList(machine.files, kSettings, {}, {{.path = "C:\\A\\a.qnp"}});
    EXPECT_THAT(Names(), ElementsAre("Alfa"));
}

TEST_F(ProjectListTest, IsRenumberedWhenARowGoes)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=3\r\nPF1=C:\\A\\a.qnp\r\nPF2=C:\\B\\b.qnp\r\n"
                "PF3=C:\\C\\c.qnp\r\n");
    const ProjectList list = Read();
    SaveProjectList(machine.files, kSettings, list, {list.projects[0], list.projects[2]});
    EXPECT_THAT(Names(), ElementsAre("Alfa", "Gamma"));
    EXPECT_THAT(machine.files.Get(kSettings), HasSubstr("PF2=C:\\C\\c.qnp\r\n"));
}

TEST_F(ProjectListTest, KeepsWhatAnotherProgramHasChangedMeanwhile)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=2\r\nPF1=C:\\A\\a.qnp\r\nPF2=C:\\B\\b.qnp\r\n");
    const ProjectList mine = Read();
    const ProjectList theirs = Read();
    // They take the first row out and add the third project.
    SaveProjectList(machine.files, kSettings, theirs,
                    {theirs.projects[1], {.path = "C:\\C\\c.qnp"}});
    // We have taken the second row out.
    SaveProjectList(machine.files, kSettings, mine, {mine.projects[0]});
    EXPECT_THAT(Names(), ElementsAre("Gamma"));
}

TEST_F(ProjectListTest, KnowsAPathInWhateverCaseItIsSpelt)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=2\r\nPF1=C:\\A\\a.qnp\r\nPF2=C:\\B\\b.qnp\r\n");
    const ProjectList mine = Read();
    // Another program writes the same two in its own spelling, and adds one.
    PutSettings("[ProjectManager]\r\nProjectFiles=3\r\nPF1=c:\\a\\A.QNP\r\nPF2=c:\\b\\B.QNP\r\n"
                "PF3=c:\\c\\c.qnp\r\n");
    SaveProjectList(machine.files, kSettings, mine, {mine.projects[0]});
    EXPECT_THAT(Names(), ElementsAre("Alfa", "Gamma"));
}

TEST_F(ProjectListTest, ShowsAProjectThatIsNamedTwiceOnce)
{
    PutSettings("[ProjectManager]\r\nProjectFiles=3\r\nPF1=C:\\A\\a.qnp\r\nPF2=c:\\a\\A.QNP\r\n"
                "PF3=C:\\B\\b.qnp\r\n");
    const ProjectList list = Read();
    EXPECT_THAT(Names(), ElementsAre("Alfa", "Beta"));
    SaveProjectList(machine.files, kSettings, list, {list.projects[1]});
    EXPECT_THAT(machine.files.Get(kSettings), HasSubstr("ProjectFiles=1\r\n"));
    EXPECT_THAT(Names(), ElementsAre("Beta"));
}

TEST_F(ProjectListTest, ReadsEachFileOnce)
{
    struct CountingFiles : MemoryFiles {
        std::unique_ptr<InputFile> OpenInput(const Text& path) const override
        {
            ++opened[LowerCase(path)];
            return MemoryFiles::OpenInput(path);
        }
        mutable std::map<Text, int> opened;
    };
    CountingFiles files;
    std::string settings = "[ProjectManager]\r\nProjectFiles=50\r\n";
    for (int i = 1; i <= 50; ++i) {
        const std::string path = "C:\\P\\" + std::to_string(i) + ".qnp";
        files.Put(path, ProjectBytes("P"));
        settings += "PF" + std::to_string(i) + "=" + path + "\r\n";
    }
    files.Put(kSettings, settings);
    EXPECT_EQ(ReadProjectList(Host{files, machine.machine}, kSettings).projects.size(), 50U);
    EXPECT_EQ(files.opened.size(), 51U);
    for (const auto& [path, count] : files.opened)
        EXPECT_EQ(count, 1) << path;
}

TEST_F(ProjectListTest, KeepsPathsOfAnyCharacters)
{
    machine.files.Put("C:\\Ω\\a.qnp", ProjectBytes("Omega"));
    SaveProjectList(machine.files, kSettings, {}, {{.path = "C:\\Ω\\a.qnp"}});
    EXPECT_THAT(Names(), ElementsAre("Omega"));
}

TEST_F(ProjectListTest, TellsWhereItCanNotBeWritten)
{
    machine.files.FailFromWrite(1, 61);
    EXPECT_THROW(SaveProjectList(machine.files, kSettings, {}, {}), RunError);
}

TEST_F(ProjectListTest, AddsNoProjectThatWasNeverSaved)
{
    project.ProjectName.ProjectName = "Hej";
    ask.Expect({BoxKind::Inform, "Info",
                "Du måste döpa projektfilen (spara) först innan du kan addera den till "
                "projektlistan!"});
    EXPECT_FALSE(Add());
}

TEST_F(ProjectListTest, AddsNoProjectWithoutAName)
{
    state.ProjectFileName = "C:\\A\\a.qnp";
    ask.Expect({BoxKind::Inform, "Info",
                "Du måste ha skrivit in ett projektnamn innan du kan addera ett projekt till "
                "projektlistan!"});
    EXPECT_FALSE(Add());
}

TEST_F(ProjectListTest, AddsNoProjectTwice)
{
    project.ProjectName.ProjectName = "Hej";
    state.ProjectFileName = "C:\\Å\\A.QNP";
    ask.Expect({BoxKind::Inform, "Info", "Projektfilen finns redan i projektlistan!"});
    EXPECT_FALSE(Add({{.path = "c:\\å\\a.qnp"}}));
}

TEST_F(ProjectListTest, AddsNoProjectWhosePathHasNoRoomInTheFile)
{
    project.ProjectName.ProjectName = "Hej";
    state.ProjectFileName = "C:\\Ω" + Text(6000, 'x') + ".qnp";
    ask.Expect({BoxKind::Critical, "Fel",
                "Sökvägen till projektfilen kan ej stå i projektlistan. Spara projektet under ett "
                "annat namn först."});
    EXPECT_FALSE(Add());
}

TEST_F(ProjectListTest, DatesAnAddedProjectAnewWhenItIsReadAgain)
{
    project.ProjectName.ProjectName = "Alfa";
    state.ProjectFileName = "C:\\A\\a.qnp";
    const auto row = Add();
    ASSERT_TRUE(row);
    EXPECT_EQ(row->date, "2004-03-01");
    SaveProjectList(machine.files, kSettings, {}, {*row});
    EXPECT_EQ(Read().projects.at(0).date, "2003-05-06");
}

TEST_F(ProjectListTest, AddsTheOpenProjectFromMemory)
{
    project.ProjectName.ProjectName = "Hej";
    project.Media.TargetMedia = 1;
    project.Files.rows.resize(2);
    project.Files.rows[0][Size] = "1024,0";
    project.Files.rows[1][Size] = "512,0";
    state.ProjectFileName = "Z:/hem/hej.qnp";
    const auto row = Add();
    ASSERT_TRUE(row);
    EXPECT_EQ(row->name, "Hej");
    EXPECT_EQ(row->platform, "Win32");
    EXPECT_EQ(row->medium, "Diskett");
    EXPECT_EQ(row->fileCount, "2");
    EXPECT_EQ(row->megabytes, "1,5");
    EXPECT_EQ(row->fileName, "hej.qnp");
    EXPECT_EQ(row->date, "2004-03-01");
    EXPECT_EQ(row->path, "Z:/hem/hej.qnp");
}

TEST_F(ProjectListTest, TellsTheVersionDataOfAFile)
{
    machine.files.Put(
        "C:\\A\\a.qnp",
        "[Version]\r\nCompanyName=Firma\r\nProductName=Hej\r\nDescription=En h\xE4lsning\r\n"
        "ProductVersion=1.2\r\nComments=Inga\r\n");
    const ProjectVersionData data = ReadProjectVersionData(machine.files, "C:\\A\\a.qnp");
    EXPECT_EQ(data.CompanyName, "Firma");
    EXPECT_EQ(data.ProductName, "Hej");
    EXPECT_EQ(data.Description, "En hälsning");
    EXPECT_EQ(data.ProductVersion, "1.2");
    EXPECT_EQ(data.Comments, "Inga");
}

} // namespace
} // namespace quillon::test
