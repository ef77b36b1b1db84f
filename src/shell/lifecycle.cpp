#include "shell/lifecycle.h"

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

} // namespace

std::optional<ReadEnd> LoadProject(Session& session)
{
    if (session.state.ProjectFileName.empty())
        return std::nullopt;
    const BusyWith busy(session.ask, "Öppnar projekt...");
    session.project.Files.rows.clear();
    const ReadEnd end = ReadProjectFile(session.project, session.state.ProjectFileName,
                                        session.host, session.ask, session.options.ToolFolder);
    // Kept: a file that was refused counts as opened, under its own name and with no files.
    session.state.ProjectIsDirty = kOff;
    HandleRecentFilesMenu(session);
    return end;
}

void SaveProject(Session& session)
{
    if (session.state.ProjectFileName.empty())
        return;
    const BusyWith busy(session.ask, "Sparar projekt...");
    WriteProjectFile(session.project, session.state.ProjectFileName, session.host, session.ask);
    session.state.ProjectIsDirty = kOff;
    HandleRecentFilesMenu(session);
}

void HandleRecentFilesMenu(Session& session)
{
    const Text& file = session.state.ProjectFileName;
    if (file.empty())
        return;
    // Names are compared with case. The oldest makes room where the file is a new one.
    auto& recent = session.RecentFiles;
    auto place = std::find(recent.begin(), recent.end(), file);
    if (place == recent.end())
        --place;
    std::move_backward(recent.begin(), place, place + 1);
    recent.front() = file;
}

} // namespace quillon
