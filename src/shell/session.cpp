#include "shell/session.h"

#include "project/new_project.h"

namespace quillon {

Session NewSession(Host& host, Ask& ask, const Text& toolFolder, const Text& ownFolder)
{
    Session session{
        .host = host, .ask = ask, .options = DefaultCreateOptions(toolFolder, ownFolder)};
    ResetToNewProject(session.project, session.state, toolFolder);
    return session;
}

} // namespace quillon
