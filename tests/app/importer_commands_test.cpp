// The commands for dependency files and setup lists, run from their window.
#include "app/MainForm.h"

#include "filelist/list_builder.h"
#include "support/window_test.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;

class ImporterCommands : public WindowTest {};

TEST_F(ImporterCommands, AddADependencyFileAndKeepTheSelection)
{
    session.project.Files = MakeList({MakeRow("a.txt"), MakeRow("c.txt")});
    machine.files.Put("C:\\Bin\\part.dep", "[part.ocx]\r\nUses1=b.dll\r\n");
    machine.files.Put("C:\\Bin\\b.dll", "x");
    MainForm form(session);
    ShowActive(form);
    form.ShowFileList({1});
    ask.choices = {{{"C:\\Bin\\part.dep"}}, {{"C:\\Bin\\part.ocx"}}, {{"%SYSDIR"}}};
    form.RunCommand(208);
    EXPECT_THAT(NamesOf(session.project.Files), ElementsAre("a.txt", "b.dll", "c.txt"));
    EXPECT_THAT(form.SelectedRows(), ElementsAre(2U));
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(session.LastDepFileDir, "C:\\Bin");
}

TEST_F(ImporterCommands, LeaveTheListAloneWhereTheDependencyFileIsCancelled)
{
    session.project.Files = MakeList({MakeRow("a.txt")});
    MainForm form(session);
    ShowActive(form);
    form.ShowFileList({0});
    ask.choices = {{{}}};
    form.RunCommand(208);
    EXPECT_THAT(form.SelectedRows(), ElementsAre(0U));
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(ImporterCommands, ShowTheComparisonWithASetupList)
{
    MainForm form(session);
    ShowActive(form);
    OnNextDialog([](QDialog& dialog) { EXPECT_EQ(dialog.objectName(), "DlgCompareLstFile"); });
    form.RunCommand(113);
}

} // namespace
} // namespace quillon::test
