#include "shell/lifecycle.h"

#include "platform/run_error.h"
#include "platform/saved_file.h"

#include <algorithm>

namespace quillon {

namespace {

/// The pointer and the status bar of a command that takes its time.
class BusyWith {
public:
    BusyWith(Ask& ask, const Text& statusText) : ask_(ask)
    {
        ask_.ShowBusyPointer(true);
        ask_.ShowStatusText(statusText);
    }
    ~BusyWith()
    {
        ask_.ShowBusyPointer(false);
        ask_.ShowStatusText("");
    }
    BusyWith(const BusyWith&) = delete;
    BusyWith& operator=(const BusyWith&) = delete;

private:
    Ask& ask_;
};

bool HoldsMoreThanTheProject(const Session& session, const Text& path)
{
    const FileSystem& files = session.host.files;
    return !session.knownFile.isInProject && files.FileExists(path) &&
           IsSameFile(files, session.knownFile.path, path);
}

/// The name under which the old file is kept; empty where all that it held is in the project.
Text WriteAndKeep(Session& session, const Text& path)
{
    FileSystem& files = session.host.files;
    RequireRoomForPictures(session.project);
    SavedFile file(files, path);
    WriteProject(session.project, file, session.host, session.ask);
    const Text kept = HoldsMoreThanTheProject(session, path) ? KeepBeside(files, path) : Text();
    file.Commit();
    return kept;
}

} // namespace

std::optional<ReadEnd> LoadProject(Session& session)
{
    if (session.state.ProjectFileName.empty())
        return std::nullopt;
    const BusyWith busy(session.ask, "Öppnar projekt...");
    // Before the reading, so that a change in the meantime is noticed.
    session.knownFile = LookAtFile(session.host.files, session.state.ProjectFileName);
    session.project.Files.rows.clear();
    const ReadEnd end = ReadProjectFile(session.project, session.state.ProjectFileName,
                                        session.host, session.ask, session.options.ToolFolder);
    session.knownFile.isInProject = end == ReadEnd::Whole;
    // Kept: a file that was refused counts as opened, under its own name and with no files.
    session.state.ProjectIsDirty = kOff;
    HandleRecentFilesMenu(session);
    return end;
}

SaveEnd SaveProject(Session& session, LockWait wait)
{
    const Text& path = session.state.ProjectFileName;
    if (path.empty())
        return SaveEnd::Done;
    Text kept;
    {
        const BusyWith busy(session.ask, "Sparar projekt...");
        FileSystem& files = session.host.files;
        const auto lock = LockSavedFile(files, path, wait);
        if (!lock)
            throw RunError(ErrorNumber::kFileInUse, path);
        if (HasChangedSince(files, session.knownFile, path))
            return SaveEnd::ChangedByOthers;
        kept = WriteAndKeep(session, path);
        session.knownFile = LookAtFile(files, path);
        session.state.ProjectIsDirty = kOff;
        HandleRecentFilesMenu(session);
    }
    if (!kept.empty())
        session.ask.Inform("Den gamla filen finns kvar",
                           "'" + path +
                               "' kunde inte läsas helt som projekt. Filen som den var "
                               "finns kvar som '" +
                               kept + "'.");
    return SaveEnd::Done;
}

void HandleRecentFilesMenu(Session& session)
{
    const Text& file = session.state.ProjectFileName;
    if (file.empty())
        return;
    // Names are compared with case. A new file replaces the oldest one.
    auto& recent = session.RecentFiles;
    auto place = std::find(recent.begin(), recent.end(), file);
    if (place == recent.end())
        --place;
    std::move_backward(recent.begin(), place, place + 1);
    recent.front() = file;
}

} // namespace quillon
