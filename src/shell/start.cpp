#include "shell/start.h"

#include "builder/tool_folders.h"
#include "project/new_project.h"
#include "shell/project_commands.h"
#include "shell/projects_folder.h"
#include "shell/settings_file.h"

namespace quillon {

void StartSession(Session& session)
{
    session.options = DefaultCreateOptions(session.options.ToolFolder, session.options.OwnFolder);
    MakeToolFolders(session.options, session.host.files);
    session.RecentFiles = {};
    session.LastInstallFilesDir = "C:\\";
    session.LastDepFileDir = "C:\\";
    ReadDataFromIniFile(session);
    FindProjectsFolder(session);
}

void ActivateForTheFirstTime(Session& session, MainWindow& window, const Text& commandLine,
                             const std::function<void()>& offerFolders)
{
    ResetToNewProject(session.project, session.state, session.options.ToolFolder);
    window.ShowProject();
    window.ShowSettings();
    window.SelectTab(Tab::Files);
    if (!commandLine.empty())
        OpenNamedProject(session, window, commandLine);
    if (session.Settings.WindowOptions.MyDocFolderAutoCreateDone == kOff)
        offerFolders();
    window.ShowRecentFiles();
}

void AnswerFolderOffer(Session& session, bool wanted)
{
    session.Settings.WindowOptions.MyDocFolderAutoCreateDone = kOn;
    if (wanted)
        CreateQNDocFolders(session);
}

} // namespace quillon
