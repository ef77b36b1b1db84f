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
    form.RunCommand(CommandId::AddDepFile);
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
    form.RunCommand(CommandId::AddDepFile);
    EXPECT_THAT(form.SelectedRows(), ElementsAre(0U));
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(ImporterCommands, ShowTheComparisonWithASetupList)
{
    MainForm form(session);
    ShowActive(form);
    OnNextDialog([](QDialog& dialog) { EXPECT_EQ(dialog.objectName(), "DlgCompareLstFile"); });
    form.RunCommand(CommandId::CompareLstFile);
}

class ImportWindows : public ImporterCommands {
protected:
    ImportWindows()
    {
        machine.files.Put("C:\\Quillon\\ImportData.txt", "");
        machine.files.Put("C:\\Proj\\Kund.vbproj", "<References>\r\n");
        machine.files.Put("C:\\Proj\\bin\\Kund.exe", "MZ");
        session.project.Files = MakeList({MakeRow("a.txt"), MakeRow("z.txt")});
    }
};

TEST_F(ImportWindows, OpenByTheirCommands)
{
    MainForm form(session);
    ShowActive(form);
    const std::pair<CommandId, const char*> kWindows[] = {
        {CommandId::ImportVB5, "DlgImportVB5Project"},
        {CommandId::ImportVB6, "DlgImportVB6Project"},
        {CommandId::ImportVBNet, "DlgImportVBNetProject"},
        {CommandId::ImportFolder, "DlgImportFolder"}};
    for (const auto& [id, name] : kWindows) {
        OnNextDialog([&](QDialog& dialog) { EXPECT_EQ(dialog.objectName(), name); });
        form.RunCommand(id);
    }
}

TEST_F(ImportWindows, AskForDestinationAndIconAndSelectTheProgram)
{
    MainForm form(session);
    ShowActive(form);
    form.ShowFileList({1});
    ask.choices = {{{"C:\\Proj\\Kund.vbproj"}}, {{"C:\\Proj\\bin\\Kund.exe"}}};
    ask.Expect({BoxKind::Inform, "Importen är klar"});
    OnNextDialog([](QDialog& import) {
        Click(import, "cmdSelectVBP");
        Click(import, "cmdSelectEXE");
        OnNextDialog([](QDialog& destination) {
            EXPECT_EQ(destination.objectName(), "DlgDestinationDirectory");
            EXPECT_EQ(destination.windowTitle(), "Välj destinationskatalog för Kund.exe");
            OnNextDialog([](QDialog& icon) {
                EXPECT_EQ(icon.objectName(), "DlgIcon");
                EXPECT_EQ(icon.windowTitle(), "Skriv in ikon-uppgifter för Kund.exe");
                Type(icon, "tDescription", "Kundregister");
                Click(icon, "cmdOK");
            });
            Click(destination, "cmdOK");
        });
        Click(import, "cmdImport");
    });
    form.RunCommand(CommandId::ImportVBNet);
    ASSERT_THAT(NamesOf(session.project.Files), ElementsAre("a.txt", "Kund.exe", "z.txt"));
    EXPECT_EQ(session.project.Files.rows[1][Destination], "%DESTDIR");
    EXPECT_EQ(session.project.Files.rows[1][IconDesc], "Kundregister");
    EXPECT_THAT(form.SelectedRows(), ElementsAre(1U));
    EXPECT_EQ(session.Settings.Directories.LastVBNETProjDir, "C:\\Proj");
}

TEST_F(ImportWindows, OpenTheWindowsOfOtherSettings)
{
    MainForm form(session);
    ShowActive(form);
    OnNextDialog([](QDialog& import) {
        OnNextDialog([](QDialog& details) { EXPECT_EQ(details.objectName(), "DlgMDADetails"); });
        Click(import, "cmdMDADetails");
    });
    form.RunCommand(CommandId::ImportVB6);
    OnNextDialog([](QDialog& import) {
        OnNextDialog([](QDialog& net) {
            EXPECT_EQ(net.objectName(), "DlgTestNETFramework");
            Click(net, "cTestIfNETInstalled");
            Click(net, "cmdOK");
        });
        Click(import, "CmdTestNETFramework");
        EXPECT_EQ(Find<QLabel>(import, "labNETtestStatus").text(),
                  "Testa att .NET Framework är installerad");
    });
    form.RunCommand(CommandId::ImportVBNet);
    EXPECT_EQ(session.project.NET.NET_TestIfInstalled, kOn);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

} // namespace
} // namespace quillon::test
