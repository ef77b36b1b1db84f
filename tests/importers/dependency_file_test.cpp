#include "importers/dependency_file.h"

#include "filelist/adding/use_filter.h"
#include "filelist/list_builder.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/one_file_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>
#include <random>

namespace quillon::test {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

const Text kFolder = "C:\\Data\\Bin";
const Text kDep = kFolder + "\\part.dep";
const Text kSystem = "C:\\WINDOWS\\SYSTEM32";

std::string Uses(int number, const std::string& value)
{
    return "Uses" + std::to_string(number) + "=" + value + "\r\n";
}

std::string UsesUpTo(int last, const std::string& value)
{
    std::string lines;
    for (int i = 1; i <= last; ++i)
        lines += Uses(i, value);
    return lines;
}

class DependencyFile : public testing::Test {
protected:
    DependencyFile() { list.sorted = false; }

    void PutFiles(const Text& folder, std::initializer_list<const char*> names)
    {
        for (const char* const name : names)
            machine.files.Put(folder + "\\" + name, "x");
    }
    bool Follow(const std::string& depFile, std::deque<ExpectedBox> boxes = {})
    {
        machine.files.Put(kDep, depFile);
        ScriptedAsk ask(std::move(boxes));
        FileAdding adding(list, machine.host, ask);
        DependencyFiles files(adding, machine.host, ask);
        const bool found =
            files.AddFilesToFileListViaDepFile({kDep, "main.ocx", kFolder, "%SYSDIR"});
        EXPECT_THAT(ask.statusTexts, ElementsAre("Adderar filer..."));
        return found;
    }
    void FollowActiveX(const Text& name, std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk ask(std::move(boxes));
        FileAdding adding(list, machine.host, ask);
        DependencyFiles(adding, machine.host, ask).FollowActiveXDepFile(name);
    }
    std::vector<Text> Names() const { return NamesOf(list); }

    MemoryHost machine;
    FileList list;
};

using FollowActiveXDepFile = DependencyFile;

} // namespace

TEST(ResolveDepPath, LooksFromTheComponentsFolder)
{
    const struct {
        Text value;
        Text baseFolder;
        Text path;
    } kCases[] = {
        {"x.dll", "C:\\A\\B", "C:\\A\\B\\x.dll"},
        {"Sub\\x.dll", "C:\\A\\B", "C:\\A\\B\\Sub\\x.dll"},
        {"..\\x.dll", "C:\\A\\B", "C:\\A\\x.dll"},
        // Kept: one step upwards is worked out, and what follows the two points is not looked at.
        {"..\\..\\x.dll", "C:\\A\\B", "C:\\A\\..\\x.dll"},
        {"...x.dll", "C:\\A\\B", "C:\\A\\x.dll"},
        {"..åx.dll", "C:\\A\\B", "C:\\A\\x.dll"},
        {"..", "C:\\A\\B", "C:\\A\\"},
        {"..\\x.dll", "C:\\A", "C:\\x.dll"},
        {"..\\x.dll", "C:", ""},
        {"\\x.dll", "D:\\A\\B", "D:\\x.dll"},
        {"\\Sub\\x.dll", "D:", "D:\\Sub\\x.dll"},
        {"\\\\server\\x.dll", "D:\\A", "D:\\\\server\\x.dll"},
        {"x.dll", "C:", "C:\\x.dll"},
        {".\\x.dll", "C:\\A", "C:\\A\\.\\x.dll"},
        {"C:\\B\\x.dll", "C:\\A", "C:\\A\\C:\\B\\x.dll"},
    };
    for (const auto& [value, baseFolder, path] : kCases)
        EXPECT_EQ(ResolveDepPath(value, baseFolder), path) << value << " from " << baseFolder;
}

TEST_F(DependencyFile, AddsTheFilesOfItsSection)
{
    machine.files.Put(kFolder + "\\One.DLL", std::string(2048, 'x'), {2004, 2, 9, 7, 5, 0});
    machine.files.Put("C:\\Data\\two.ocx", "x");
    machine.files.Put("C:\\Lib\\three.tlb", "x");
    EXPECT_TRUE(Follow("[MAIN.OCX]\r\nUses1=One.DLL\r\nuses2 = ..\\two.ocx\r\n"
                       "Uses3=\"\\Lib\\three.tlb\"\r\n[other.ocx]\r\nUses4=four.dll\r\n"));
    ASSERT_EQ(list.rows.size(), 3U);
    EXPECT_THAT(list.rows[0].columns,
                ElementsAre("one.dll", "%SYSDIR", "2,0", "2004-02-09", "07:05", "", "DA", "", "dll",
                            "c:\\data\\bin\\one.dll", "", "", "", "", ""));
    EXPECT_EQ(list.rows[1][Filename], "two.ocx");
    EXPECT_EQ(list.rows[1][Source], "c:\\data\\two.ocx");
    EXPECT_EQ(list.rows[2][Filename], "three.tlb");
    EXPECT_EQ(list.rows[2][Source], "c:\\lib\\three.tlb");
}

TEST_F(DependencyFile, EndsAtTheSixteenthGapOfTheSection)
{
    PutFiles(kFolder, {"a.dll", "b.dll", "c.dll"});
    EXPECT_TRUE(Follow("[main.ocx]\r\n" + Uses(16, "a.dll")));
    EXPECT_THAT(Names(), ElementsAre("a.dll")) << "behind fifteen gaps";

    list.rows.clear();
    Follow("[main.ocx]\r\n" + Uses(17, "a.dll"));
    EXPECT_THAT(Names(), IsEmpty()) << "behind sixteen";

    list.rows.clear();
    Follow("[main.ocx]\r\n" + Uses(8, "a.dll") + Uses(17, "b.dll") + Uses(19, "c.dll"));
    EXPECT_THAT(Names(), ElementsAre("a.dll", "b.dll")) << "gaps count together";

    list.rows.clear();
    Follow("[main.ocx]\r\n" + Uses(16, "a.dll") + Uses(18, "b.dll"));
    EXPECT_THAT(Names(), ElementsAre("a.dll")) << "17 is the sixteenth";

    list.rows.clear();
    Follow("[main.ocx]\r\n" + Uses(1, "c.dll") + Uses(16, "a.dll") + Uses(18, "b.dll"));
    EXPECT_THAT(Names(), ElementsAre("c.dll", "a.dll", "b.dll")) << "17 is the fifteenth";

    list.rows.clear();
    Follow("[main.ocx]\r\nUses1=\r\nUses2=\"\"\r\n" + Uses(17, "b.dll"));
    EXPECT_THAT(Names(), IsEmpty()) << "an empty value is a gap like a missing one";
}

TEST_F(DependencyFile, ReadsAThousandKeys)
{
    PutFiles(kFolder, {"a.dll", "b.dll", "c.dll"});
    Follow("[main.ocx]\r\n" + UsesUpTo(999, "a.dll") + Uses(1000, "b.dll") + Uses(1001, "c.dll"));
    EXPECT_THAT(Names(), ElementsAre("a.dll", "b.dll"));

    list.rows.clear();
    Follow("[main.ocx]\r\nUses1=a.dll\r\n[a.dll]\r\n" + UsesUpTo(999, "a.dll") +
           Uses(1000, "b.dll") + Uses(1001, "c.dll"));
    EXPECT_THAT(Names(), ElementsAre("a.dll", "b.dll")) << "in the inner section";
}

TEST_F(DependencyFile, PassesNamesWithoutAPointOver)
{
    PutFiles(kFolder, {"a.dll", "folder"});
    Follow("[main.ocx]\r\nUses1=folder\r\nUses2=a.dll\r\n[folder]\r\nUses1=b.dll\r\n");
    EXPECT_THAT(Names(), ElementsAre("a.dll"));
}

TEST_F(DependencyFile, FollowsTheSectionsOfItsFiles)
{
    PutFiles(kFolder, {"a.dll", "b.dll", "c.dll", "d.dll", "e.dll"});
    Follow("[main.ocx]\r\nUses1=A.DLL\r\nUses2=d.dll\r\n"
           "[A.dll]\r\nUses1=B.DLL\r\nUses2=c.dll\r\nUses4=e.dll\r\n"
           "[b.dll]\r\nUses1=e.dll\r\n");
    // The first gap ends an inner section, and what it names is not followed in turn.
    EXPECT_THAT(Names(), ElementsAre("a.dll", "b.dll", "c.dll", "d.dll"));
}

TEST_F(DependencyFile, FindsTheSectionOfAFileByItsNameWithoutFolder)
{
    PutFiles("C:\\Data\\Bin\\Sub", {"a.dll"});
    PutFiles(kFolder, {"b.dll"});
    Follow("[main.ocx]\r\nUses1=Sub\\a.dll\r\n[a.dll]\r\nUses1=b.dll\r\n");
    EXPECT_THAT(Names(), ElementsAre("a.dll", "b.dll"));
    EXPECT_EQ(list.rows[1][Source], "c:\\data\\bin\\b.dll") << "from the component's folder";
}

TEST_F(DependencyFile, GoesOnInTheInnerSectionBehindANameWithoutAPoint)
{
    PutFiles(kFolder, {"a.dll", "b.dll", "c.dll", "d.dll", "e.dll", "f.dll"});
    const std::string file = "[main.ocx]\r\nUses1=a.dll\r\nUses2=d.dll\r\nUses3=f.dll\r\n"
                             "[a.dll]\r\nUses1=b.dll\r\nUses2=c.dll\r\nUses3=folder\r\n"
                             "Uses4=e.dll\r\n";
    Follow(file);
    // Number 2 comes from [a.dll]; its own section ends as usual, which brings [main.ocx] back.
    EXPECT_THAT(Names(), ElementsAre("a.dll", "b.dll", "c.dll", "f.dll"));
}

TEST_F(DependencyFile, ComesToTheSameSectionTwiceWithTheSameOutcome)
{
    PutFiles(kFolder, {"a.dll", "b.dll", "d.dll", "e.dll"});
    Follow("[main.ocx]\r\nUses1=a.dll\r\nUses2=a.dll\r\nUses3=d.dll\r\nUses5=e.dll\r\n"
           "[a.dll]\r\nUses1=b.dll\r\nUses2=folder\r\nUses3=a.dll\r\nUses4=e.dll\r\n");
    // 1 leads into [a.dll]; its 2 has no dot; its 3 leads there again; its 4 leads back.
    EXPECT_THAT(Names(), ElementsAre("a.dll", "b.dll", "e.dll"));
}

TEST_F(DependencyFile, LeavesDuplicatesOutWithoutAWord)
{
    PutFiles(kFolder, {"a.dll", "b.dll"});
    list.rows.push_back(MakeRow("A.DLL", "%SYSDIR", "d:\\a.dll"));
    Follow("[main.ocx]\r\nUses1=a.dll\r\nUses2=b.dll\r\nUses3=b.dll\r\n");
    EXPECT_THAT(Names(), ElementsAre("A.DLL", "b.dll"));
}

TEST_F(DependencyFile, ObeysTheFilterOfTheImporters)
{
    PutFiles(kFolder, {"shdocvw.dll", "oleaut32.dll", "a.dll"});
    machine.machine.windowsXP = true;
    Follow("[main.ocx]\r\nUses1=SHDOCVW.DLL\r\nUses2=oleaut32.dll\r\nUses3=a.dll\r\n");
    EXPECT_THAT(Names(), ElementsAre("a.dll"));
}

TEST_F(DependencyFile, PassesAFileWithoutTheSectionWithoutAWord)
{
    // Kept: the walk counts its gaps before it ends, so the box never comes up.
    for (const std::string file :
         {"", "[other.ocx]\r\nUses1=a.dll\r\n", "[main.ocx]\r\n", "Uses1=a.dll\r\n", "\0\x1A\xFF[",
          "[main.ocx]\r\nUse1=a.dll\r\nUses01=a.dll\r\nUses 1=a.dll\r\n"})
        EXPECT_TRUE(Follow(file)) << file;
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(DependencyFile, ReadsAMissingFileAsAnEmptyOne)
{
    ScriptedAsk ask;
    FileAdding adding(list, machine.host, ask);
    DependencyFiles files(adding, machine.host, ask);
    EXPECT_TRUE(files.AddFilesToFileListViaDepFile({"X:\\no.dep", "a", "X:", "%SYSDIR"}));
}

TEST_F(DependencyFile, TellsOfAFailureAndKeepsTheRowsSoFar)
{
    PutFiles(kFolder, {"a.dll", "c.dll"});
    EXPECT_TRUE(
        Follow("[main.ocx]\r\nUses1=a.dll\r\nUses2=Gone.dll\r\nUses3=c.dll\r\n",
               {{BoxKind::Critical, "Fel", "Filen 'c:\\data\\bin\\gone.dll' finns inte."}}));
    EXPECT_THAT(Names(), ElementsAre("a.dll", "gone.dll")) << "as far as the row was filled";
    EXPECT_EQ(list.rows[1][Source], "");

    list.rows.clear();
    EXPECT_TRUE(Follow("[main.ocx]\r\nUses1=Nowhere\\b.dll\r\n",
                       {{BoxKind::Critical, "Fel",
                         "Katalogen till 'c:\\data\\bin\\nowhere\\b.dll' finns inte."}}));
}

TEST_F(DependencyFile, TellsOfEachSourceWithASemicolonAndGoesOn)
{
    PutFiles(kFolder, {"a.dll"});
    Follow("[main.ocx]\r\nUses1=x;y.dll\r\nUses2=a.dll\r\n",
           {{BoxKind::Critical, "Ogiltiga tecken hittade",
             "Källsökvägen till filen 'c:\\data\\bin\\x;y.dll' innehåller ogiltiga tecken! Filen "
             "kan ej adderas till fillistan!"}});
    EXPECT_THAT(Names(), ElementsAre("a.dll"));
}

TEST_F(DependencyFile, TellsOfAFullList)
{
    list.rows.assign(kMaxRows, MakeRow("x"));
    PutFiles(kFolder, {"a.dll"});
    Follow("[main.ocx]\r\nUses1=a.dll\r\n", {{BoxKind::Critical, "Fel", "Fel #6: 'a.dll'."}});
    EXPECT_EQ(list.rows.size(), kMaxRows);
}

TEST_F(DependencyFile, TellsOfAFileThatCannotBeRead)
{
    machine.files.Put(kDep, "[main.ocx]\r\nUses1=a.dll\r\n");
    machine.files.At(kDep).unreadable = true;
    ScriptedAsk ask{{{BoxKind::Critical, "Fel", "Åtkomst nekas till '" + kDep + "'."}}};
    FileAdding adding(list, machine.host, ask);
    DependencyFiles files(adding, machine.host, ask);
    files.AddWithSecondLevel({kDep, "main.ocx", kFolder, "%SYSDIR"});
    EXPECT_THAT(list.rows, IsEmpty());
}

TEST_F(DependencyFile, RefusesAFileThatIsTooLargeToBeOne)
{
    machine.files.Put(kDep, std::string((32U << 20) + 1, '['));
    ScriptedAsk ask{
        {{BoxKind::Critical, "Fel", "Filen '" + kDep + "' är för stor för att vara en DEP-fil."}}};
    FileAdding adding(list, machine.host, ask);
    DependencyFiles files(adding, machine.host, ask);
    files.AddWithSecondLevel({kDep, "main.ocx", kFolder, "%SYSDIR"});
    EXPECT_THAT(list.rows, IsEmpty());
}

TEST_F(DependencyFile, CutsValuesAtItsLimit)
{
    const std::string longest(195, 'x');
    machine.files.Put(kFolder + "\\" + longest + ".dll", "x");
    Follow("[main.ocx]\r\nUses1=" + longest + ".dllcut\r\n");
    EXPECT_THAT(Names(), ElementsAre(longest + ".dll"));
}

TEST_F(DependencyFile, KeepsPathsLongerThanAnyValueWhole)
{
    const Text folder = kFolder + "\\" + std::string(200, 'x') + "\\" + std::string(200, 'y');
    machine.files.Put(folder + "\\a.dll", "x");
    machine.files.Put(kDep, "[main.ocx]\r\nUses1=a.dll\r\n");
    ScriptedAsk ask;
    FileAdding adding(list, machine.host, ask);
    DependencyFiles files(adding, machine.host, ask);
    files.AddFilesToFileListViaDepFile({kDep, "main.ocx", folder, "%SYSDIR"});
    ASSERT_EQ(list.rows.size(), 1U);
    EXPECT_EQ(list.rows[0][Source], LowerCase(folder) + "\\a.dll");
}

TEST_F(FollowActiveXDepFile, TakesTheFileOfThatNameFromTheSystemFolder)
{
    PutFiles(kSystem, {"one.dll"});
    machine.files.Put(kSystem + "\\Chart.DEP", "[Chart.ocx]\r\nUses1=One.dll\r\n");
    FollowActiveX("CHART.OCX");
    ASSERT_THAT(Names(), ElementsAre("one.dll"));
    EXPECT_EQ(list.rows[0][Destination], "%SYSDIR");
    EXPECT_EQ(list.rows[0][Source], "c:\\windows\\system32\\one.dll");
}

TEST_F(FollowActiveXDepFile, FollowsTheFilesBesideItsFilesAndNoFurther)
{
    PutFiles(kSystem, {"one.dll", "two.dll", "three.dll", "four.dll"});
    PutFiles("C:\\WINDOWS", {"up.dll", "low.dll"});
    machine.files.Put(kSystem + "\\chart.dep",
                      "[chart.ocx]\r\nUses1=one.dll\r\nUses2=..\\up.dll\r\n");
    machine.files.Put(kSystem + "\\one.dep",
                      "[one.dll]\r\nUses1=two.dll\r\n[two.dll]\r\nUses1=three.dll\r\n");
    machine.files.Put(kSystem + "\\two.dep", "[two.dll]\r\nUses1=four.dll\r\n");
    machine.files.Put("C:\\WINDOWS\\up.dep", "[up.dll]\r\nUses1=low.dll\r\n");
    FollowActiveX("chart.ocx");
    EXPECT_THAT(Names(), ElementsAre("one.dll", "up.dll", "two.dll", "three.dll", "low.dll"));
    EXPECT_EQ(list.rows[4][Source], "c:\\windows\\low.dll");
    for (const FileListRow& row : list.rows)
        EXPECT_EQ(row[Destination], "%SYSDIR");
}

TEST_F(FollowActiveXDepFile, EndsTheSecondLevelAtItsFirstGap)
{
    PutFiles(kSystem, {"one.dll", "two.dll", "three.dll"});
    machine.files.Put(kSystem + "\\chart.dep", "[chart.ocx]\r\nUses1=one.dll\r\nUses3=two.dll\r\n");
    machine.files.Put(kSystem + "\\two.dep", "[two.dll]\r\nUses1=three.dll\r\n");
    FollowActiveX("chart.ocx");
    EXPECT_THAT(Names(), ElementsAre("one.dll", "two.dll"));
}

TEST_F(FollowActiveXDepFile, FollowsNamesWithoutAPointOnTheSecondLevel)
{
    PutFiles(kSystem, {"one.dll"});
    machine.files.Put(kSystem + "\\chart.dep", "[chart.ocx]\r\nUses1=part\r\n");
    machine.files.Put(kSystem + "\\part.dep", "[part]\r\nUses1=one.dll\r\n");
    FollowActiveX("chart.ocx");
    EXPECT_THAT(Names(), ElementsAre("one.dll"));
}

TEST_F(FollowActiveXDepFile, GoesOnBehindAFailureOfTheFirstLevel)
{
    PutFiles(kSystem, {"one.dll", "two.dll"});
    machine.files.Put(kSystem + "\\chart.dep",
                      "[chart.ocx]\r\nUses1=one.dll\r\nUses2=gone.dll\r\n");
    machine.files.Put(kSystem + "\\one.dep", "[one.dll]\r\nUses1=two.dll\r\n");
    FollowActiveX("chart.ocx", {{BoxKind::Critical, "Fel"}});
    EXPECT_THAT(Names(), ElementsAre("one.dll", "gone.dll", "two.dll"));
}

TEST_F(FollowActiveXDepFile, AddsNothingForAComponentWithoutFile)
{
    FollowActiveX("chart.ocx");
    EXPECT_THAT(Names(), IsEmpty());
}

// Each name leads to every other one, on both levels: walked name by name this would be millions of
// files.
TEST_F(FollowActiveXDepFile, ComesToAnEndWhereAllFilesNameEachOther)
{
    std::string names;
    for (int i = 1; i <= 300; ++i) {
        const std::string name = "chart.o" + std::to_string(i);
        PutFiles(kSystem, {name.c_str()});
        names += Uses(i, name);
    }
    std::string file = "[chart.ocx]\r\n" + names;
    for (int i = 1; i <= 300; ++i)
        file += "[chart.o" + std::to_string(i) + "]\r\n" + names;
    machine.files.Put(kSystem + "\\chart.dep", file);
    FollowActiveX("chart.ocx");
    EXPECT_EQ(list.rows.size(), 300U);
}

TEST_F(FollowActiveXDepFile, ComesToAnEndInAFileThatNamesItself)
{
    PutFiles(kSystem, {"chart.ocx"});
    machine.files.Put(kSystem + "\\chart.dep", "[chart.ocx]\r\n" + UsesUpTo(300, "chart.ocx"));
    FollowActiveX("chart.ocx");
    EXPECT_THAT(Names(), ElementsAre("chart.ocx"));
}

namespace {

// A disk that works out "." and ".." as Windows does, and notes what it is asked about.
class WatchedFiles : public MemoryFiles {
public:
    bool FileExists(const Text& path) const override { return MemoryFiles::FileExists(Note(path)); }
    bool DirExists(const Text& path) const override { return MemoryFiles::DirExists(Note(path)); }
    FileStatus Status(const Text& path) const override { return MemoryFiles::Status(Note(path)); }
    std::unique_ptr<InputFile> OpenInput(const Text& path) const override
    {
        ++opened[LowerCase(ResolvePath(path))];
        return MemoryFiles::OpenInput(Note(path));
    }

    mutable std::vector<Text> looks;
    mutable std::map<Text, int> opened; // by resolved path

private:
    Text Note(const Text& path) const
    {
        looks.push_back(path);
        return ResolvePath(path);
    }
};

// Ends a walk that goes on for too long.
class ImpatientWatch : public DependencyWatch {
public:
    explicit ImpatientWatch(int patience) : patience_(patience) {}

    bool MayGoOn(const Text& file) override
    {
        asked.push_back(file);
        return static_cast<int>(asked.size()) <= patience_;
    }
    void LeftOut(const FileToAdd&) override {}
    void Failed(const FileToAdd&, const Text&) override {}

    std::vector<Text> asked;

private:
    int patience_;
};

class DependencyWork : public testing::Test {
protected:
    DependencyWork() { list.sorted = false; }

    std::vector<Text> Follow(int times, const Text& control, int patience = 1000)
    {
        ImpatientWatch watch(patience);
        SilentUser user;
        FileAdding adding(list, host, user);
        DependencyFiles walk(adding, host, user, &watch);
        for (int i = 0; i < times; ++i)
            walk.FollowActiveXDepFile(control);
        return watch.asked;
    }

    WatchedFiles files;
    FixedMachine machine;
    Host host{files, machine};
    FileList list;
};

} // namespace

// A file that names itself a thousand times, for each of a thousand controls: a thousand million
// lines if walked line by line.
TEST_F(DependencyWork, WalksASectionOnceHoweverOftenItIsNamed)
{
    files.Put(kSystem + "\\chart.ocx", "x");
    files.Put(kSystem + "\\chart.dep", "[chart.ocx]\r\n" + UsesUpTo(1000, "chart.ocx"));
    EXPECT_LE(Follow(1000, "chart.ocx").size(), 10U);
    EXPECT_THAT(NamesOf(list), ElementsAre("chart.ocx"));
    EXPECT_EQ(files.opened[LowerCase(kSystem) + "\\chart.dep"], 1);
}

TEST_F(DependencyWork, KnowsAFileByWhateverPathItIsNamed)
{
    std::string names;
    Text path = "chart.ocx";
    for (int i = 1; i <= 60; ++i)
        names += Uses(i, path = ".\\" + path);
    for (int i = 61; i <= 120; ++i)
        names += Uses(i, "sub" + std::to_string(i) + "\\..\\Chart.OCX");
    for (int i = 121; i <= 300; ++i) {
        names += Uses(i, "f" + std::to_string(i) + ".dll");
        files.Put(kSystem + "\\f" + std::to_string(i) + ".dll", "x");
    }
    files.Put(kSystem + "\\chart.ocx", "x");
    files.Put(kSystem + "\\chart.dep", "[chart.ocx]\r\n" + names);
    Follow(1, "chart.ocx");
    EXPECT_EQ(list.rows.size(), 181U);
    EXPECT_EQ(files.opened[LowerCase(kSystem) + "\\chart.dep"], 1);
    EXPECT_LE(files.opened[LowerCase(kSystem) + "\\f200.dll"], 2) << "can it be read; its version";
    EXPECT_LT(files.looks.size(), 181U * 20U);
}

// The walk finds nothing new in it, so there is no other call.
TEST_F(DependencyWork, AsksNowAndThenInALongWalk)
{
    std::string file = "[chart.ocx]\r\n";
    for (int i = 1; i <= 50; ++i)
        file += Uses(i, "chart.o" + std::to_string(i));
    for (int i = 1; i <= 50; ++i) {
        files.Put(kSystem + "\\chart.o" + std::to_string(i), "x");
        file += "[chart.o" + std::to_string(i) + "]\r\n" + UsesUpTo(1000, "chart.o1");
    }
    files.Put(kSystem + "\\chart.dep", file);
    const std::vector<Text> asked = Follow(1, "chart.ocx");
    EXPECT_THAT(asked, Contains("chart.DEP"));
    EXPECT_GT(asked.size(), 50U + 90U) << "of a hundred thousand lines";
    list.rows.clear();
    EXPECT_EQ(Follow(1, "chart.ocx", 60).size(), 61U) << "and stops where it is told to";
}

TEST_F(DependencyWork, LooksForNothingAboveADrive)
{
    for (const char* const name : {"a.dll", "b.dll"})
        files.Put(Text("D:\\") + name, "x");
    files.Put("D:\\main.dep", "[main.ocx]\r\nUses1=..\\x.dll\r\nUses2=a.dll\r\n");
    files.Put("D:\\a.dep", "[a.dll]\r\nUses1=b.dll\r\n");
    ScriptedAsk ask;
    FileAdding adding(list, host, ask);
    DependencyFiles(adding, host, ask)
        .AddWithSecondLevel({"D:\\main.dep", "main.ocx", "D:", "%SYSDIR"});
    EXPECT_THAT(NamesOf(list), ElementsAre("a.dll", "b.dll"));
    EXPECT_THAT(files.looks, Not(Contains(".DEP")));
}

namespace {

// A plain walk by the rules, which remembers nothing.
class PlainWalk {
public:
    PlainWalk(FileAdding& adding, Host host) : adding_(adding), host_(host) {}

    void FollowActiveXDepFile(const Text& name)
    {
        const Text dep = kSystem + "\\" + ChangeFilenameExt(name, "DEP");
        AddVia(dep, name, kSystem);
        for (int i = 1; i <= 1000; ++i) {
            ProfileReader reader;
            reader.SetIniFile(host_.files, dep);
            reader.SetIniSection(name);
            const Text value = Value(reader, i);
            if (value.empty())
                return;
            const Text path = ResolveDepPath(value, kSystem);
            const std::size_t last = path.rfind('\\');
            AddVia(ChangeFilenameExt(path, "DEP"), path.substr(last + 1), path.substr(0, last));
        }
    }

private:
    static Text Value(const ProfileReader& reader, int number)
    {
        return reader.ReadIniString("Uses" + std::to_string(number), 200);
    }
    static Text NameOf(const Text& value) { return LowerCase(value.substr(value.rfind('\\') + 1)); }

    void AddVia(const Text& dep, const Text& section, const Text& base)
    {
        ProfileReader reader;
        reader.SetIniFile(host_.files, dep);
        reader.SetIniSection(section);
        int misses = 0;
        try {
            for (int i = 1; i <= 1000 && misses <= 15; ++i) {
                const Text value = Value(reader, i);
                misses += value.empty() ? 1 : 0;
                if (value.empty() || !Add(value, base))
                    continue;
                reader.SetIniSection(NameOf(value));
                if (AddInner(reader, base))
                    reader.SetIniSection(section);
            }
        } catch (const RunError&) {
            // A box, and the walk is over.
        }
    }

    bool AddInner(const ProfileReader& reader, const Text& base)
    {
        for (int i = 1; i <= 1000; ++i) {
            const Text value = Value(reader, i);
            if (value.empty())
                return true;
            if (!Add(value, base))
                return false;
        }
        return true;
    }

    // False where the path has no point.
    bool Add(const Text& value, const Text& base)
    {
        const Text path = ResolveDepPath(value, base);
        if (!ContainsText(path, "."))
            return false;
        AddFileToFileListView_UseFilter(adding_, host_.machine,
                                        {.FileName = NameOf(value),
                                         .SourcePath = LowerCase(path),
                                         .Destination = "%SYSDIR",
                                         .CheckDuplicates = true,
                                         .UseVersionRules = true});
        return true;
    }

    FileAdding& adding_;
    Host host_;
};

constexpr const char* kNames[] = {
    "a.dll",          "b.dll",       "c.ocx",       "A.DLL", "gone.dll",       "lost.dll",
    ".\\a.dll",       ".\\.\\c.ocx", "..\\up.dll",  "part",  ".\\part",        "sub\\d.dll",
    "sub\\..\\b.dll", "\\a.dll",     "shdocvw.dll", "d.dll", "..\\..\\top.dll"};

// Dependency files that lead to each other in every way that there is.
void PutRandomFiles(WatchedFiles& files, std::mt19937& random)
{
    const auto below = [&](std::size_t end) { return random() % end; };
    for (const char* const name : {"a.dll", "b.dll", "c.ocx", "d.dll", "sub\\d.dll", "..\\up.dll"})
        if (below(4) != 0)
            files.Put(ResolvePath(kSystem + "\\" + name), "x");
    for (const char* const name : {"a", "b", "c", "sub\\d", "..\\up", "part"}) {
        std::string bytes;
        for (const char* const section : {"a.dll", "b.dll", "c.ocx", "d.dll", "up.dll", "part"}) {
            bytes += Text("[") + section + "]\r\n";
            for (std::size_t key = below(3); key < below(8); key += 1 + below(8) / 7)
                bytes += Uses(static_cast<int>(key) + 1, kNames[below(std::size(kNames))]);
        }
        files.Put(ResolvePath(kSystem + "\\" + name + ".dep"), bytes);
    }
}

} // namespace

TEST(DependencyFiles, AddsTheRowsOfThePlainWalk)
{
    std::size_t rows = 0;
    for (unsigned seed = 0; seed < 150; ++seed) {
        WatchedFiles files;
        FixedMachine machine;
        const Host host{files, machine};
        std::mt19937 random(seed);
        PutRandomFiles(files, random);
        FileList plain, list;
        plain.sorted = list.sorted = false;
        SilentUser user;
        FileAdding plainAdding(plain, host, user);
        FileAdding adding(list, host, user);
        PlainWalk plainWalk(plainAdding, host);
        DependencyFiles walk(adding, host, user);
        for (const char* const control : {"c.ocx", "a.dll", "C.ocx", "none.ocx", "b.dll"}) {
            plainWalk.FollowActiveXDepFile(control);
            walk.FollowActiveXDepFile(control);
        }
        ASSERT_EQ(list.rows, plain.rows) << "seed " << seed;
        rows += list.rows.size();
    }
    EXPECT_GT(rows, 450U) << "there was something to compare";
}

} // namespace quillon::test
