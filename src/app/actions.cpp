#include "app/actions.h"

#include "actions/forms/DlgAutoexecConfig.h"
#include "actions/forms/DlgInstallOptions.h"
#include "actions/forms/DlgLanguage.h"
#include "actions/forms/DlgRegisterFiles.h"
#include "actions/forms/DlgRunAppAfter.h"
#include "actions/forms/DlgRunScript.h"
#include "actions/forms/DlgShowDocAfter.h"
#include "actions/forms/pages/DlgProgramGroup.h"
#include "app/FilesPage.h"
#include "app/MainForm.h"
#include "app/edit_commands.h"
#include "app/import_commands.h"
#include "app/text_commands.h"
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

void Help(MainForm& form)
{
    ShowHelp(form.GetSession());
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
const std::map<int, Action> kActions = {
    {101, [](MainForm& form) { NewProject(form.GetSession(), form); }},
    {102, [](MainForm& form) { OpenProject(form.GetSession(), form); }},
    {103, [](MainForm& form) { SaveProjectCommand(form.GetSession(), form); }},
    {104, [](MainForm& form) { SaveProjectAs(form.GetSession(), form); }},
    {105, [](MainForm& form) { OpenProjectManager(form.GetSession(), form, &form); }},
    {107, ImportIniFile},
    {108, Create},
    {109, [](MainForm& form) { ShowTest(form.GetSession(), &form); }},
    {110, [](MainForm& form) { ShowPrintFileList(form.GetSession(), &form); }},
    {112, [](MainForm& form) { form.close(); }},
    {113, [](MainForm& form) { ShowCompareLstFile(form.GetSession(), &form); }},
    {114, [](MainForm& form) { DeleteRowsCommand(form.GetSession(), form); }},
    {115, [](MainForm& form) { SortListCommand(form.GetSession(), form, &form); }},
    {116, [](MainForm& form) { IconCommand(form.GetSession(), form, &form); }},
    {117, [](MainForm& form) { CopyOptionsCommand(form.GetSession(), form, &form); }},
    {118, [](MainForm& form) { RegisterFontCommand(form.GetSession(), form, &form); }},
    {119, [](MainForm& form) { FileInfoCommand(form.GetSession(), form, &form); }},
    {120, [](MainForm& form) { ChangeDestinationCommand(form.GetSession(), form); }},
    {121, [](MainForm& form) { ShowDestinationDirectoriesCommand(form.GetSession(), &form); }},
    {122, [](MainForm& form) { ShowRegisterFiles(form.GetSession(), &form); }},
    {123, [](MainForm& form) { ShowProgramGroup(form.GetSession(), &form); }},
    {124, [](MainForm& form) { UpdateFileListCommand(form.GetSession(), form); }},
    {125, [](MainForm& form) { EditDesBackground(form.Design()); }},
    {126, [](MainForm& form) { EditDesTitle(form.Design()); }},
    {127, [](MainForm& form) { EditDesUnderline(form.Design()); }},
    {128, [](MainForm& form) { EditDesTextBox(form.Design()); }},
    {129, [](MainForm& form) { EditDesRTFbox(form.Design()); }},
    {130, EditPicture},
    {131, [](MainForm& form) { EditDesPicturesAnim(form.Design()); }},
    {132, [](MainForm& form) { EditDesLogotype(form.Design()); }},
    {133, [](MainForm& form) { EditDesPercentGauge(form.Design()); }},
    {134, [](MainForm& form) { EditDesSound(form.Design()); }},
    {135, [](MainForm& form) { EditDesOverview(form.Design()); }},
    {kUndoCommand, UndoEdit},
    {kRedoCommand, RedoEdit},
    {136, CopyText},
    {137, PasteText},
    {217, FindInFileList},
    {138, [](MainForm& form) { ShowInstallOptions(form.GetSession(), &form); }},
    {139, [](MainForm& form) { ShowLanguage(form.GetSession(), &form); }},
    {140, [](MainForm& form) { ShowRunAppAfter(form.GetSession(), &form); }},
    {141, [](MainForm& form) { ShowDocAfter(form.GetSession(), &form); }},
    {142, [](MainForm& form) { ShowRunScript(form.GetSession(), &form); }},
    {143, [](MainForm& form) { ShowAutoexecConfig(form.GetSession(), &form); }},
    {144, [](MainForm& form) { ShowVariables(form.GetSession(), &form); }},
    {145, [](MainForm& form) { ShowVersionInfo(form.GetSession(), &form); }},
    {146, [](MainForm& form) { ShowEditorOptions(form.GetSession(), form, &form); }},
    {147, Select<Tab::Files>},
    {148, Select<Tab::Design>},
    {149, Select<Tab::Dialogs>},
    {150, Select<Tab::Registry>},
    {151, Select<Tab::IniFiles>},
    {152, Select<Tab::Components>},
    {153, Help},
    {154, Help},
    {155, Help},
    {156, [](MainForm& form) { ShowSupport(form.GetSession()); }},
    {157, [](MainForm& form) { OpenBugReportWizard(form.GetSession(), &form); }},
    {158, [](MainForm& form) { ShowAbout(&form); }},
    {201, [](MainForm& form) { ShowImportVB5Project(MakeImportDesk(form), &form); }},
    {202, [](MainForm& form) { ShowImportVB6Project(MakeImportDesk(form), &form); }},
    {203, [](MainForm& form) { ShowImportVBNetProject(MakeImportDesk(form), &form); }},
    {214, [](MainForm& form) { ShowImportFolder(MakeImportDesk(form), &form); }},
    {205, [](MainForm& form) { AddFilesCommand(form.GetSession(), form); }},
    {206, [](MainForm& form) { AddTreeCommand(form.GetSession(), form, &form); }},
    {207, [](MainForm& form) { AddEmptyDirectoryCommand(form.GetSession(), form); }},
    {208, [](MainForm& form) { AddDepFileCommand(form.GetSession(), form); }},
    {209, [](MainForm& form) { FindReplaceDestinationCommand(form.GetSession(), form, &form); }},
    {210, [](MainForm& form) { FindReplaceSourceCommand(form.GetSession(), form, &form); }},
    {211, [](MainForm& form) { FindReplaceOptionsCommand(form.GetSession(), form, &form); }},
    {291, OpenRecent<0>},
    {292, OpenRecent<1>},
    {293, OpenRecent<2>},
    {294, OpenRecent<3>},
    {301, [](MainForm& form) { ShowDesignPreview(form.GetSession()); }},
    {302, Help},
};
// clang-format on

} // namespace

Action FindAction(int id)
{
    const auto found = kActions.find(id);
    return found == kActions.end() ? nullptr : found->second;
}

} // namespace quillon
