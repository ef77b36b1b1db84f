#include "actions/unsavable_line.h"

#include "platform/run_error.h"
#include "project/new_project.h"
#include "project/project_file.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

namespace quillon::test {
namespace {

TEST(FindUnsavableLine, LetsEveryUsualLinePass)
{
    for (const char* list :
         {"", "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: A=\"....\"", "...", ".....", " ....",
          "[Settings]", "DELETE=HKEY_USERS\\x", "a\r\n\r\nb", "[Registry", "a....\r\n....b"})
        EXPECT_FALSE(FindUnsavableLine(list)) << list;
}

// Each line that is told is one that really does harm, and the first of them is told.
TEST(FindUnsavableLine, TellsTheLinesThatDoNotComeBack)
{
    for (const Text& line : std::initializer_list<Text>{
             "....", "[INIFiles]", "[AutoexecBat]", "[ConfigSys]", "[RegisterFileList]",
             "[FileList]", "[FileListInfo]", "[FileComponents]", "[RegisterFiles]",
             "[Configuration]", "[registry]"}) {
        EXPECT_EQ(FindUnsavableLine("a\r\n" + line + "\r\n....x\r\n....\r\nb"), line);
        EXPECT_EQ(FindUnsavableLine(line), line);
    }
}

TEST(FindUnsavableLine, IsRightAboutTheEndOfAList)
{
    MemoryHost machine;
    machine.files.Put("C:\\Quillon\\Res\\SetupDef.bmp", "");
    ScriptedAsk ask;
    OpenProjectState state;
    Project project;
    ResetToNewProject(project, state, "C:\\Quillon");
    project.Lists.Registry = "a\r\n....\r\nb";
    WriteProjectFile(project, "C:\\p.qnp", machine.host, ask);
    Project read;
    ReadProjectFile(read, "C:\\p.qnp", machine.host, ask, "C:\\Quillon");
    EXPECT_EQ(read.Lists.Registry, "a");
}

// The flags of the lists stand between the scripts and the lists.
TEST(FindUnsavableLine, IsRightAboutAScriptWithTheHeaderOfTheFlags)
{
    MemoryHost machine;
    machine.files.Put("C:\\Quillon\\Res\\SetupDef.bmp", "");
    ScriptedAsk ask;
    OpenProjectState state;
    Project project;
    ResetToNewProject(project, state, "C:\\Quillon");
    project.Lists.RunScriptBefore = "a\r\n[Configuration]";
    project.Lists.Registry = "HKEY_USERS\\x";
    WriteProjectFile(project, "C:\\p.qnp", machine.host, ask);
    Project read;
    ReadProjectFile(read, "C:\\p.qnp", machine.host, ask, "C:\\Quillon");
    EXPECT_EQ(read.Lists.Registry, "");
}

TEST(UnsavableLineWarning, NamesTheLine)
{
    EXPECT_EQ(UnsavableLineWarning("...."),
              "Raden '....' har en egen betydelse i projektfilen. Det som står från och med den "
              "raden kan gå förlorat när projektet öppnas igen.");
}

} // namespace
} // namespace quillon::test
