#include "shell/projects_folder.h"

#include "helpers/windows_path.h"

namespace quillon {

namespace {

constexpr const char* kToolFolder = "Quillon";
constexpr const char* kProjects = "Mina projekt";

} // namespace

Text OfferedProjectsFolder(const Machine& machine)
{
    return JoinPath(JoinPath(machine.GetMyDocumentsDir(), kToolFolder), kProjects);
}

void FindProjectsFolder(Session& session)
{
    session.ProjectsFolder = session.options.OwnFolder + "\\Projects";
    const Machine& machine = session.host.machine;
    if (machine.GetMyDocumentsDir().empty())
        return;
    if (const Text folder = OfferedProjectsFolder(machine); session.host.files.DirExists(folder))
        session.ProjectsFolder = folder;
}

void CreateQNDocFolders(Session& session)
{
    if (!session.host.machine.GetMyDocumentsDir().empty())
        session.host.files.DirCreate(OfferedProjectsFolder(session.host.machine));
    FindProjectsFolder(session);
}

} // namespace quillon
