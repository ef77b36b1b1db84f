#include "actions/unsavable_line.h"

#include "platform/run_error.h"
#include "project/new_project.h"
#include "project/project_file.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

namespace quillon::test {
namespace {

constexpr ListField kBefore = &section::Lists::RunScriptBefore;

std::optional<Text> LineFoundIn(ListField list, std::string_view text)
{
    const auto found = FindUnsavableLine(list, text);
    return found ? std::optional(found->line) : std::nullopt;
}

TEST(FindUnsavableLine, LetsEveryUsualLinePass)
{
    for (const char* list :
         {"", "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: A=\"....\"", "...", ".....", " ....",
          "[Settings]", "DELETE=HKEY_USERS\\x", "a\r\n\r\nb", "[Registry", "a....\r\n....b"})
        EXPECT_FALSE(FindUnsavableLine(kBefore, list)) << list;
}

// A mark that comes earlier in the file is found there first.
TEST(FindUnsavableLine, LetsTheHeadersOfEarlierListsPass)
{
    using section::Lists;
    EXPECT_FALSE(FindUnsavableLine(kBefore, "[RunScriptBefore]\r\n[Version]"));
    EXPECT_FALSE(FindUnsavableLine(&Lists::Registry, "[Configuration]\r\n[RunScriptAfter]"));
    EXPECT_FALSE(FindUnsavableLine(&Lists::RegisterFileList, "[RegisterFiles]\r\n[ConfigSys]"));
    // The mark of a list is compared with case.
    EXPECT_FALSE(FindUnsavableLine(kBefore, "[registry]\r\n [Registry]\r\n[Registry] "));
    // These lines have a mark in front.
    EXPECT_FALSE(FindUnsavableLine(&Lists::INIFiles, "[AutoexecBat]\r\n....\r\n[FileList]"));
}

// Each line that is reported is one that really does harm, and the first of them is reported.
TEST(FindUnsavableLine, TellsTheLinesThatDoNotComeBack)
{
    for (const Text& line : std::initializer_list<Text>{
             "....", "[INIFiles]", "[AutoexecBat]", "[ConfigSys]", "[RegisterFileList]",
             "[FileList]", "[FileListInfo]", "[FileComponents]", "[RegisterFiles]",
             "[Configuration]", "[configuration]", "\t[Configuration] x", "[Registry]",
             "[RunScriptAfter]", "[RunAppSelfX]", "a\n[FileListInfo]\nb"}) {
        EXPECT_EQ(LineFoundIn(kBefore, "a\r\n" + line + "\r\n....x\r\n....\r\nb"), line);
        EXPECT_EQ(LineFoundIn(kBefore, line), line);
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

// The flags of the lists are between the scripts and the lists.
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

// Any list that passes this check comes back from the file, with all other lists.
TEST(FindUnsavableLine, LetsNothingPassThatDoesHarm)
{
    using section::Lists;
    const ListField kLists[] = {&Lists::RunScriptBefore, &Lists::RunScriptAfter, &Lists::Registry,
                                &Lists::INIFiles,        &Lists::AutoexecBat,    &Lists::ConfigSys,
                                &Lists::RegisterFileList};
    const char* const kLines[] = {"....",
                                  "[RunScriptBefore]",
                                  "[RunScriptAfter]",
                                  "[Configuration]",
                                  "[Registry]",
                                  "[INIFiles]",
                                  "[AutoexecBat]",
                                  "[ConfigSys]",
                                  "[RegisterFiles]",
                                  "[RegisterFileList]",
                                  "[FileComponents]",
                                  "[FileListInfo]",
                                  "[FileList]",
                                  "[RunAppSelfX]",
                                  "[fileLISTinfo]",
                                  "[registry]",
                                  "[Version]",
                                  "[ID]"};
    MemoryHost machine;
    machine.files.Put("C:\\Quillon\\Res\\SetupDef.bmp", "");
    for (const ListField list : kLists)
        for (const Text line : kLines) {
            ScriptedAsk ask;
            OpenProjectState state;
            Project project;
            ResetToNewProject(project, state, "C:\\Quillon");
            for (const ListField other : kLists)
                project.Lists.*other = "text";
            project.FileComponents[0] = {.Comp = 1, .CompName = "Ett"};
            project.Files.rows.push_back({{"a.txt"}});
            project.Lists.*list = "a\r\n" + line + "\r\nb";
            WriteProjectFile(project, "C:\\p.qnp", machine.host, ask);
            Project read;
            ResetToNewProject(read, state, "C:\\Quillon");
            ReadProjectFile(read, "C:\\p.qnp", machine.host, ask, "C:\\Quillon");
            bool isWhole = read.FileComponents[0].CompName == "Ett" && read.Files.rows.size() == 1;
            for (const ListField other : kLists)
                isWhole = isWhole && read.Lists.*other == project.Lists.*other;
            EXPECT_TRUE(isWhole || WhyListsCannotBeSaved(project.Lists)) << line;
            if (line != "[RunAppSelfX]")
                EXPECT_EQ(isWhole, !WhyListsCannotBeSaved(project.Lists)) << line;
        }
}

TEST(UnsavableLineWarning, NamesTheLineAndWhatItHits)
{
    EXPECT_EQ(UnsavableLineWarning({"....", nullptr}),
              "Raden '....' kan ej lagras i projektfilen. När projektet öppnas igen slutar listan "
              "där, och det som står efter den raden går förlorat.");
    EXPECT_EQ(UnsavableLineWarning({"[Registry]", "Registry"}),
              "Raden '[Registry]' kan ej lagras i projektfilen. När projektet öppnas igen tas den "
              "för något annat, och det som finns under 'Registry' går förlorat.");
}

TEST(WhyListsCannotBeSaved, NamesTheListToo)
{
    section::Lists lists;
    EXPECT_FALSE(WhyListsCannotBeSaved(lists));
    lists.AutoexecBat = "[ConfigSys]";
    EXPECT_EQ(WhyListsCannotBeSaved(lists),
              "'AUTOEXEC.BAT': " + UnsavableLineWarning({"[ConfigSys]", "CONFIG.SYS"}));
}

} // namespace
} // namespace quillon::test
