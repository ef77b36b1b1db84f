#include "shell/session.h"

#include "project/new_project.h"

namespace quillon {

Session NewSession(Host& host, Ask& ask, const Text& toolFolder)
{
    Session session{.host = host, .ask = ask, .options = DefaultCreateOptions(toolFolder)};
    ResetToNewProject(session.project, session.state, toolFolder);
    return session;
}

} // namespace quillon
