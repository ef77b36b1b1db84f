#include "app/commands/actions.h"

#include "actions/forms/DlgAutoexecConfig.h"
#include "actions/forms/DlgInstallOptions.h"
#include "actions/forms/DlgLanguage.h"
#include "actions/forms/DlgRegisterFiles.h"
#include "actions/forms/DlgRunAppAfter.h"
#include "actions/forms/DlgRunScript.h"
#include "actions/forms/DlgShowDocAfter.h"
#include "actions/forms/pages/DlgProgramGroup.h"
#include "app/MainForm.h"
#include "app/commands/edit_commands.h"
#include "app/commands/import_commands.h"
#include "app/commands/text_commands.h"
#include "app/pages/FilesPage.h"
#include "builder/forms/DlgCreate.h"
#include "builder/forms/DlgTest.h"
#include "design/forms/design_commands.h"
#include "filelist/forms/DlgVariables.h"
#include "filelist/forms/list_commands.h"
#include "filelist/forms/per_file_commands.h"
#include "filelist/forms/row_commands.h"
#include "importers/forms/DlgCompareLstFile.h"
#include "importers/forms/dep_command.h"
#include "shell/command_table.h"
#include "shell/forms/DlgAbout.h"
#include "shell/forms/DlgEditorOptions.h"
#include "shell/forms/DlgVersionInfo.h"
#include "shell/help.h"
#include "shell/project_commands.h"
#include "tools/forms/PrintFileList.h"
#include "tools/forms/ProjectManager.h"
#include "tools/forms/WizBugReport.h"

#include <map>

namespace quillon {

namespace {

template <Tab tab>
void Select(MainForm& form)
{
    form.SelectTab(tab);
}

template <std::size_t slot>
void OpenRecent(MainForm& form)
{
    OpenRecentFile(form.GetSession(), form, slot);
}

void HelpOnTab(MainForm& form)
{
    ShowHelp(form.GetSession(), {CommandOf(form.SelectedTab())});
}

void SearchHelp(MainForm& form)
{
    ShowHelp(form.GetSession(), {.searches = true});
}

void HelpOnHelp(MainForm& form)
{
    ShowHelp(form.GetSession(), {CommandId::HelpOnHelp});
}

void Create(MainForm& form)
{
    Session& session = form.GetSession();
    ShowCreate(
        session, form, &form, [&](QWidget* parent) { ShowEditorOptions(session, form, parent); },
        form.Paths());
}

void FindInFileList(MainForm& form)
{
    form.SelectTab(Tab::Files);
    form.Files().OpenFind();
}

void EditPicture(MainForm& form)
{
    EditDesPictures(form.Design(), PictureToEdit(form.GetSession().project.DesPictures));
}

// clang-format off
const std::map<CommandId, Action> kActions = {
    {CommandId::NewProject, [](MainForm& form) { NewProject(form.GetSession(), form); }},
    {CommandId::OpenProject, [](MainForm& form) { OpenProject(form.GetSession(), form); }},
    {CommandId::SaveProject, [](MainForm& form) { SaveProjectCommand(form.GetSession(), form); }},
    {CommandId::SaveProjectAs, [](MainForm& form) { SaveProjectAs(form.GetSession(), form); }},
    {CommandId::ProjectManager, [](MainForm& form) { OpenProjectManager(form.GetSession(), form, &form); }},
    {CommandId::ImportIniFile, ImportIniFile},
    {CommandId::Create, Create},
    {CommandId::Test, [](MainForm& form) { ShowTest(form.GetSession(), &form); }},
    {CommandId::Print, [](MainForm& form) { ShowPrintFileList(form.GetSession(), &form); }},
    {CommandId::Exit, [](MainForm& form) { form.close(); }},
    {CommandId::CompareLstFile, [](MainForm& form) { ShowCompareLstFile(form.GetSession(), &form); }},
    {CommandId::DeleteRows, [](MainForm& form) { DeleteRowsInWindow(form.GetSession(), form); }},
    {CommandId::SortList, [](MainForm& form) { SortListCommand(form.GetSession(), form, &form); }},
    {CommandId::Icon, [](MainForm& form) { IconCommand(form.GetSession(), form, &form); }},
    {CommandId::CopyOptions, [](MainForm& form) { CopyOptionsCommand(form.GetSession(), form, &form); }},
    {CommandId::RegisterFont, [](MainForm& form) { RegisterFontCommand(form.GetSession(), form, &form); }},
    {CommandId::FileInfo, [](MainForm& form) { FileInfoCommand(form.GetSession(), form, &form); }},
    {CommandId::ChangeDestination, [](MainForm& form) { ChangeDestinationInWindow(form.GetSession(), form); }},
    {CommandId::ShowDestinations, [](MainForm& form) { ShowDestinationDirectoriesCommand(form.GetSession(), &form); }},
    {CommandId::RegisterFiles, [](MainForm& form) { ShowRegisterFiles(form.GetSession(), &form); }},
    {CommandId::ProgramGroup, [](MainForm& form) { ShowProgramGroup(form.GetSession(), &form); }},
    {CommandId::UpdateFileList, [](MainForm& form) { UpdateFileListInWindow(form.GetSession(), form); }},
    {CommandId::Background, [](MainForm& form) { EditDesBackground(form.Design()); }},
    {CommandId::Title, [](MainForm& form) { EditDesTitle(form.Design()); }},
    {CommandId::Underline, [](MainForm& form) { EditDesUnderline(form.Design()); }},
    {CommandId::TextBox, [](MainForm& form) { EditDesTextBox(form.Design()); }},
    {CommandId::RtfBox, [](MainForm& form) { EditDesRTFbox(form.Design()); }},
    {CommandId::Pictures, EditPicture},
    {CommandId::ChangingPictures, [](MainForm& form) { EditDesPicturesAnim(form.Design()); }},
    {CommandId::Logotype, [](MainForm& form) { EditDesLogotype(form.Design()); }},
    {CommandId::PercentGauge, [](MainForm& form) { EditDesPercentGauge(form.Design()); }},
    {CommandId::Sound, [](MainForm& form) { EditDesSound(form.Design()); }},
    {CommandId::Overview, [](MainForm& form) { EditDesOverview(form.Design()); }},
    {CommandId::Undo, UndoEdit},
    {CommandId::Redo, RedoEdit},
    {CommandId::Copy, CopyText},
    {CommandId::Paste, PasteText},
    {CommandId::FindInList, FindInFileList},
    {CommandId::InstallOptions, [](MainForm& form) { ShowInstallOptions(form.GetSession(), &form); }},
    {CommandId::Language, [](MainForm& form) { ShowLanguage(form.GetSession(), &form); }},
    {CommandId::RunAppAfter, [](MainForm& form) { ShowRunAppAfter(form.GetSession(), &form); }},
    {CommandId::ShowDocAfter, [](MainForm& form) { ShowDocAfter(form.GetSession(), &form); }},
    {CommandId::RunScript, [](MainForm& form) { ShowRunScript(form.GetSession(), &form); }},
    {CommandId::AutoexecConfig, [](MainForm& form) { ShowAutoexecConfig(form.GetSession(), &form); }},
    {CommandId::Variables, [](MainForm& form) { ShowVariables(form.GetSession(), &form); }},
    {CommandId::VersionInfo, [](MainForm& form) { ShowVersionInfo(form.GetSession(), &form); }},
    {CommandId::EditorOptions, [](MainForm& form) { ShowEditorOptions(form.GetSession(), form, &form); }},
    {CommandId::FilesTab, Select<Tab::Files>},
    {CommandId::DesignTab, Select<Tab::Design>},
    {CommandId::DialogsTab, Select<Tab::Dialogs>},
    {CommandId::RegistryTab, Select<Tab::Registry>},
    {CommandId::IniFilesTab, Select<Tab::IniFiles>},
    {CommandId::ComponentsTab, Select<Tab::Components>},
    {CommandId::HelpContents, HelpOnTab},
    {CommandId::HelpSearch, SearchHelp},
    {CommandId::HelpOnHelp, HelpOnHelp},
    {CommandId::Support, [](MainForm& form) { ShowSupport(form.GetSession()); }},
    {CommandId::BugReport, [](MainForm& form) { OpenBugReportWizard(form.GetSession(), &form); }},
    {CommandId::About, [](MainForm& form) { ShowAbout(&form); }},
    {CommandId::ImportVB5, [](MainForm& form) { ShowImportVB5Project(MakeImportContext(form), &form); }},
    {CommandId::ImportVB6, [](MainForm& form) { ShowImportVB6Project(MakeImportContext(form), &form); }},
    {CommandId::ImportVBNet, [](MainForm& form) { ShowImportVBNetProject(MakeImportContext(form), &form); }},
    {CommandId::ImportFolder, [](MainForm& form) { ShowImportFolder(MakeImportContext(form), &form); }},
    {CommandId::AddFiles, [](MainForm& form) { AddFilesInWindow(form.GetSession(), form); }},
    {CommandId::AddTree, [](MainForm& form) { AddTreeCommand(form.GetSession(), form, &form); }},
    {CommandId::AddEmptyFolder, [](MainForm& form) { AddEmptyDirectoryInWindow(form.GetSession(), form); }},
    {CommandId::AddDepFile, [](MainForm& form) { AddDepFileInWindow(form.GetSession(), form); }},
    {CommandId::ReplaceDestinations, [](MainForm& form) { FindReplaceDestinationCommand(form.GetSession(), form, &form); }},
    {CommandId::ReplaceSources, [](MainForm& form) { FindReplaceSourceCommand(form.GetSession(), form, &form); }},
    {CommandId::ReplaceOptions, [](MainForm& form) { FindReplaceOptionsCommand(form.GetSession(), form, &form); }},
    {CommandId::RecentFile1, OpenRecent<0>},
    {CommandId::RecentFile2, OpenRecent<1>},
    {CommandId::RecentFile3, OpenRecent<2>},
    {CommandId::RecentFile4, OpenRecent<3>},
    {CommandId::PreviewScreen, [](MainForm& form) { ShowDesignPreview(form.GetSession()); }},
    {CommandId::Help, HelpOnTab},
};
// clang-format on

} // namespace

Action FindAction(CommandId id)
{
    const auto found = kActions.find(id);
    return found == kActions.end() ? nullptr : found->second;
}

} // namespace quillon
