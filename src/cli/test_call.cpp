// quillonc test: what a test run writes, for scripts that look at it or show it elsewhere.
#include "builder/test_run.h"
#include "cli/box_json.h"
#include "cli/calls.h"
#include "cli/console_ask.h"
#include "cli/open_project.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace quillon::cli {

namespace {

Exit Report(const CallContext& context, const ConsoleAsk& ask, const TestRun& run,
            const Text& folder, bool isDone)
{
    // The boxes show a number and no file.
    const Text error = run.failure ? FailureText(*run.failure, folder) : Text();
    if (!error.empty())
        context.err << error << "\n";
    const Exit exit = isDone ? Exit::Done : Exit::Stopped;
    if (!context.WantsJson()) {
        if (isDone)
            context.out << "Testfiler: " << folder << "\n";
        return exit;
    }
    Json object = {{"result", isDone          ? "done"
                              : error.empty() ? "stopped"
                                              : "failed"},
                   {"folder", folder},
                   {"files", run.FilesInList},
                   {"boxes", BoxesJson(ask)}};
    if (!error.empty())
        object["error"] = error;
    return context.PrintJson(std::move(object), exit);
}

} // namespace

Exit TestProject(const CallContext& context)
{
    const Text path = context.PathOperand(0);
    const Text folder = context.Path(context.RequireValue("--to"));
    ConsoleAsk ask(nullptr, context.err);
    Session session = NewSession(context.host, ask, context.toolFolder, context.ownFolder);
    // A test of a part would show another setup than the project's.
    if (OpenProject(session, path) == Opened::InPart)
        throw CallFailure{PartlyReadText(path) + " Inget test skrivs.", Exit::Unreadable};
    TestRun run{session.project, context.host, ask, session.options};
    const bool isDone = WriteTestFiles(run, folder);
    return Report(context, ask, run, folder, isDone);
}

} // namespace quillon::cli
