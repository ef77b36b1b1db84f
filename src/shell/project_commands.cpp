#include "shell/project_commands.h"

#include "actions/unsavable_line.h"
#include "filelist/view/sort.h"
#include "helpers/product.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "project/new_project.h"
#include "shell/failure_text.h"
#include "shell/lifecycle.h"

namespace quillon {

namespace {

bool IsNeverSaved(const Session& session)
{
    return session.state.ProjectFileName == kUnsavedProjectName;
}

FileQuestion ProjectFileQuestion(const Session& session, const Text& title)
{
    FileQuestion question{.title = title,
                          .folder = session.ProjectsFolder,
                          .fileName = "",
                          .filter = "Projektfiler (*.qnp)|*.qnp",
                          .defaultExtension = kProjectFileExtension,
                          // Nothing of its path is stored in the project.
                          .isForProject = false};
    if (const Text folder = ExtractDirectory(session.state.ProjectFileName);
        !IsNeverSaved(session) && !folder.empty())
        question.folder = folder;
    return question;
}

/// The answer is for the state that the question is about, not for changes made while it is shown.
bool AgreesToWriteOver(Session& session)
{
    const Text& path = session.state.ProjectFileName;
    const auto theirs = LookAtFile(session.host.files, path).content;
    const bool agrees = session.ask.YesNo(
        "Projektet har ändrats",
        "'" + path +
            "' har ändrats av ett annat program sedan projektet öppnades eller sparades. Vill du "
            "skriva över filen?",
        Ask::Stops::OnNo);
    if (agrees)
        session.knownFile.content = theirs;
    return agrees;
}

/// Saves under the name that the project has; a failure is reported, and the project then still
/// counts as changed.
bool SaveOrTell(Session& session, MainWindow& window)
{
    if (const auto why = WhyListsCannotBeSaved(session.project.Lists)) {
        session.ask.Critical("Kan ej spara", *why + " Ändra raden och spara sedan igen.");
        return false;
    }
    try {
        while (SaveProject(session) == SaveEnd::ChangedByOthers)
            if (!AgreesToWriteOver(session))
                return false;
    } catch (const RunError& error) {
        session.ask.Critical("Fel", FailureText(error, session.state.ProjectFileName));
        return false;
    }
    window.ShowRecentFiles();
    return true;
}

} // namespace

SaveChanges AskSaveChanges(Session& session, MainWindow& window)
{
    if (session.state.ProjectIsDirty == kOff)
        return SaveChanges::GoOn;
    switch (session.ask.YesNoCancel(Text(kProductName),
                                    "Vissa inställningar har ändrats. Vill du spara dessa?")) {
    case Answer::Yes:
        return SaveProjectCommand(session, window) ? SaveChanges::GoOn : SaveChanges::Cancel;
    case Answer::No:
        return SaveChanges::GoOn;
    default:
        return SaveChanges::Cancel;
    }
}

void NewProject(Session& session, MainWindow& window)
{
    if (AskSaveChanges(session, window) == SaveChanges::Cancel)
        return;
    ResetToNewProject(session.project, session.state, session.options.ToolFolder);
    window.ShowProject();
    window.SelectTab(Tab::Files);
}

void OpenProject(Session& session, MainWindow& window)
{
    if (AskSaveChanges(session, window) == SaveChanges::Cancel)
        return;
    const auto file = session.ask.OpenFile(ProjectFileQuestion(session, "Öppna projekt"));
    if (file && !file->empty())
        OpenNamedProject(session, window, *file);
}

void OpenChosenProject(Session& session, MainWindow& window, const Text& file)
{
    if (AskSaveChanges(session, window) != SaveChanges::Cancel)
        OpenNamedProject(session, window, file);
}

void OpenRecentFile(Session& session, MainWindow& window, std::size_t slot)
{
    if (slot >= session.RecentFiles.size() || session.RecentFiles[slot].empty())
        return;
    // Saving the open project moves the slots; the name that the user chose counts, not the place.
    const Text file = session.RecentFiles[slot];
    window.SelectTab(Tab::Files);
    if (AskSaveChanges(session, window) == SaveChanges::Cancel)
        return;
    if (!session.host.files.FileExists(file)) {
        // Kept: the misspelt first word is what users have always seen.
        session.ask.Critical("Fel", "Kaj ej öppna '" + file + "'!");
        return;
    }
    OpenNamedProject(session, window, file);
}

void OpenNamedProject(Session& session, MainWindow& window, const Text& file)
{
    session.state.ProjectFileName = file;
    window.ShowTitle();
    LoadProject(session);
    KeepStoredOrder(session.project.Files);
    window.ShowProject();
    window.ShowRecentFiles();
}

bool SaveProjectCommand(Session& session, MainWindow& window)
{
    return IsNeverSaved(session) ? SaveProjectAs(session, window) : SaveOrTell(session, window);
}

bool SaveProjectAs(Session& session, MainWindow& window)
{
    const auto file = session.ask.SaveFile(ProjectFileQuestion(session, "Spara projekt"));
    if (!file || file->empty())
        return false;
    session.state.ProjectFileName = *file;
    window.ShowTitle();
    return SaveOrTell(session, window);
}

bool MayCloseMainWindow(Session& session, MainWindow& window)
{
    return AskSaveChanges(session, window) == SaveChanges::GoOn;
}

} // namespace quillon
