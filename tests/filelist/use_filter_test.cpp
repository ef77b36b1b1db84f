#include "filelist/adding/use_filter.h"

#include "filelist/adding/redist_folder.h"
#include "filelist/list_builder.h"
#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const Text kSystem = "C:\\WINDOWS\\SYSTEM32";
const Text kRedist = "C:\\VB98\\Wizards\\PDWizard\\Redist";

class UseFilter : public testing::Test {
protected:
    UseFilter() { list.sorted = false; }

    void RegisterDevelopmentSystem(const Text& command = "\"C:\\VB98\\VB6.EXE\" \"%1\"")
    {
        machine.machine.registry[{RegistryRoot::ClassesRoot,
                                  "VisualBasic.Project\\shell\\open\\command", ""}] = command;
    }
    void Add(const Text& name, bool trapErrors = false)
    {
        ScriptedAsk ask;
        FileAdding adding(list, machine.host, ask);
        AddFileToFileListView_UseFilter(adding, machine.machine,
                                        {.FileName = name,
                                         .SourcePath = kSystem + "\\" + name,
                                         .Destination = "%SYSDIR",
                                         .TrapErrors = trapErrors});
    }

    MemoryHost machine;
    FileList list;
};

} // namespace

TEST_F(UseFilter, NeverAddsTheBrowsersOwnLibrary)
{
    for (const char* const name : {"SHDOCVW.DLL", "shdocvw.dll", "ShDocVw.Dll"}) {
        machine.files.Put(kSystem + "\\" + name, "x");
        Add(name);
    }
    EXPECT_THAT(list.rows, IsEmpty());
    machine.files.Put(kSystem + "\\shdocvw.dll.txt", "x");
    Add("shdocvw.dll.txt");
    EXPECT_THAT(NamesOf(list), ElementsAre("shdocvw.dll.txt"));
}

TEST_F(UseFilter, TakesGuardedFilesFromTheFolderForRedistribution)
{
    machine.machine.windowsXP = true;
    RegisterDevelopmentSystem();
    const char* const names[] = {"oleaut32.dll", "olepro32.dll", "comcat.dll", "asycfilt.dll",
                                 "stdole2.tlb"};
    for (const Text name : names) {
        machine.files.Put(kRedist + "\\" + name, std::string(2048, 'r'));
        machine.files.Put(kSystem + "\\" + name, "s");
        Add(name);
    }
    ASSERT_EQ(list.rows.size(), std::size(names));
    for (std::size_t i = 0; i < std::size(names); ++i) {
        EXPECT_EQ(list.rows[i][Filename], names[i]);
        EXPECT_EQ(list.rows[i][Source], LowerCase(kRedist) + "\\" + names[i]);
        EXPECT_EQ(list.rows[i][Size], "2,0");
    }
}

TEST_F(UseFilter, LeavesGuardedFilesOutWithoutADevelopmentSystem)
{
    machine.machine.windowsXP = true;
    for (const char* const name :
         {"OLEAUT32.DLL", "Olepro32.dll", "COMCAT.dll", "asycfilt.DLL", "stdole2.TLB"}) {
        machine.files.Put(kSystem + "\\" + name, "x");
        Add(name);
    }
    EXPECT_THAT(list.rows, IsEmpty());
    machine.files.Put(kSystem + "\\msvcrt.dll", "x");
    Add("msvcrt.dll");
    EXPECT_THAT(NamesOf(list), ElementsAre("msvcrt.dll"));
}

TEST_F(UseFilter, TakesGuardedFilesAsTheyAreOnOtherSystems)
{
    RegisterDevelopmentSystem();
    machine.files.Put(kSystem + "\\oleaut32.dll", "x");
    Add("oleaut32.dll");
    ASSERT_EQ(list.rows.size(), 1U);
    EXPECT_EQ(list.rows[0][Source], LowerCase(kSystem) + "\\oleaut32.dll");
}

TEST_F(UseFilter, HandsFailuresToItsCaller)
{
    machine.files.PutFolder(kSystem);
    EXPECT_EQ(RunErrorNumber([&] { Add("missing.dll", true); }), ErrorNumber::kFileNotFound);
    EXPECT_THAT(NamesOf(list), ElementsAre("missing.dll")) << "as far as it was filled";
}

TEST(GetDirectoryToVB6RedistDir, CutsTheRegisteredCommandAtItsLastBackslash)
{
    const std::pair<const char*, const char*> cases[] = {
        {"\"C:\\VB98\\VB6.EXE\" \"%1\"", "C:\\VB98\\Wizards\\PDWizard\\Redist"},
        {"\"C:\\VB6.EXE\"", "C:\\Wizards\\PDWizard\\Redist"},
        // Kept: whatever stands first is dropped, and an argument's backslash counts.
        {"C:\\VB98\\VB6.EXE %1", ":\\VB98\\Wizards\\PDWizard\\Redist"},
        {"\"C:\\VB98\\VB6.EXE\" \"D:\\%1\"", "C:\\VB98\\VB6.EXE\" \"D:\\Wizards\\PDWizard\\Redist"},
        {"Å\\VB6.EXE", "\\Wizards\\PDWizard\\Redist"},
        {"\"vb6", "vb6\\Wizards\\PDWizard\\Redist"},
        {"", ""}};
    for (const auto& [command, folder] : cases) {
        FixedMachine machine;
        machine.registry[{RegistryRoot::ClassesRoot, "VisualBasic.Project\\shell\\open\\command",
                          ""}] = command;
        EXPECT_EQ(GetDirectoryToVB6RedistDir(machine), folder) << command;
    }
    EXPECT_EQ(GetDirectoryToVB6RedistDir(FixedMachine()), "");
}

} // namespace quillon::test
