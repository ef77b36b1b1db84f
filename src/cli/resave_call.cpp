// quillonc resave: reads a project and saves it again, as a user does who opens and saves it.
#include "actions/unsavable_line.h"
#include "cli/calls.h"
#include "cli/console_ask.h"
#include "cli/open_project.h"
#include "platform/run_error.h"
#include "shell/lifecycle.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace quillon::cli {

Exit ResaveProject(const CallContext& context)
{
    const Text in = context.PathOperand(0);
    const Text out = context.PathOperand(1);
    const auto after = context.arguments.Value("--after");

    ConsoleAsk ask(nullptr, context.err);
    Session session = NewSession(context.host, ask, context.toolFolder);
    if (after)
        OpenProject(session, context.Path(*after));
    const Opened opened = OpenProject(session, in);
    if (opened == Opened::InPart)
        context.err << PartlyReadText(in) << "\n";

    // What was read in part has lists with the headers of others in them, and is saved as it is.
    const auto why =
        opened == Opened::Whole ? WhyListsCannotBeSaved(session.project.Lists) : std::nullopt;
    if (why)
        return context.Fail(*why + " Inget är sparat.", Exit::Stopped);
    session.state.ProjectFileName = out;
    // What is not read is lost from the target too, whatever is there.
    if (opened == Opened::InPart) {
        session.knownFile = LookAtFile(context.host.files, out);
        session.knownFile.isInProject = false;
    }
    try {
        if (SaveProject(session, LockWait::UntilFree) == SaveEnd::ChangedByOthers)
            return context.Fail("'" + out + "' har under tiden sparats av ett annat program.",
                                Exit::Stopped);
    } catch (const RunError& error) {
        return context.Fail(FailureText(error, out), Exit::Stopped);
    }
    if (!context.WantsJson())
        return Exit::Done;
    return context.PrintJson({{"project", out},
                              {"isWhole", opened == Opened::Whole},
                              {"files", session.project.Files.rows.size()}},
                             Exit::Done);
}

} // namespace quillon::cli
