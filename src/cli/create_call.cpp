// quillonc create: Create as its form runs it, the form filled from the switches.
#include "builder/create.h"
#include "builder/folder_disks.h"
#include "cli/box_json.h"
#include "cli/calls.h"
#include "cli/console_ask.h"
#include "cli/medium_words.h"
#include "cli/open_project.h"
#include "cli/signing_switches.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <ostream>

namespace quillon::cli {

namespace {

// A switch without an effect is a mistake, unlike a project's setting, which may be meant for
// another medium.
void ChooseSmallContainer(const Arguments& arguments, CreateForm& form)
{
    for (const char* other : {"--no-compress", "--separate"})
        if (arguments.Has(other))
            throw UsageError{Text("--small och ") + other + " utesluter varandra."};
    if (form.TargetMedia != Medium::CompressedCd)
        throw UsageError{"--small gäller bara mediet cd, inte " +
                         Text(WordOfMedium(form.TargetMedia)) + "."};
    form.UseCompression = 1;
    form.KeepCompressedFilesOneAndOne = 0;
    form.SmallContainer = 1;
}

// In the order in which a user would do it: choosing a medium puts that medium's last folder into
// the form, so the folder is set after it.
CreateForm FillForm(const CallContext& context, Session& session)
{
    const Arguments& arguments = context.arguments;
    CreateForm form = OpenCreateForm(session.project, session.state);
    if (const auto word = arguments.Value("--medium"))
        ClickMedium(form, std::ranges::find(kMediumWords, *word, &MediumWord::word)->medium,
                    session.project, session.state);
    if (const auto folder = arguments.Value("--to"))
        ChangeDestinationDir(form, context.Path(*folder), session.project, session.state);
    if (const auto system = arguments.Value("--os"))
        form.cbOS = *system == "new" ? 1 : 0;
    if (arguments.Has("--no-compress"))
        form.UseCompression = 0;
    if (arguments.Has("--separate"))
        form.KeepCompressedFilesOneAndOne = 1;
    if (arguments.Has("--small"))
        ChooseSmallContainer(arguments, form);
    return form;
}

const char* ResultWord(CreateResult result)
{
    switch (result) {
    case CreateResult::Done:
        return "done";
    case CreateResult::Stopped:
        return "stopped";
    default:
        return "failed";
    }
}

Exit Report(const CallContext& context, const ConsoleAsk& ask, const CreateRun& run,
            CreateResult result)
{
    const bool failed = result == CreateResult::Failed;
    if (failed)
        context.err << FailureText(run) << "\n";
    const Exit exit = result == CreateResult::Done ? Exit::Done : Exit::Stopped;
    if (!context.WantsJson())
        return exit;
    Json object = {{"result", ResultWord(result)},
                   {"medium", WordOfMedium(run.form.TargetMedia)},
                   {"folder", run.form.tDestinationDir},
                   {"files", run.FilesInList},
                   {"floppies", run.FloppiesUsed},
                   {"status", ask.statusLines},
                   {"boxes", BoxesJson(ask)}};
    if (failed)
        object["error"] = FailureText(run);
    return context.PrintJson(std::move(object), exit);
}

} // namespace

Exit CreatePackage(const CallContext& context)
{
    const Text path = context.PathOperand(0);
    const auto answers = context.arguments.Has("--continue") ? ConsoleAsk::Answers::Accept
                                                             : ConsoleAsk::Answers::Decline;
    ConsoleAsk ask(context.WantsJson() ? nullptr : &context.out, context.err, answers);
    Session session = NewSession(context.host, ask, context.toolFolder, context.ownFolder);
    // The tool would go on with a part; a package that lacks files would come out.
    if (OpenProject(session, path) == Opened::InPart)
        throw CallFailure{PartlyReadText(path) + " Ingen installation skapas.", Exit::Unreadable};

    CreateForm form = FillForm(context, session);
    if (const Text reason = CreateObstacle(form); !reason.empty())
        throw CallFailure{reason, Exit::Stopped};
    FolderDisks disks(context.host, form.tDestinationDir);
    CompressionInterface compression(context.host, ask, disks);
    Signing signing(context.programs, ReadSigningSwitches(context), {});
    CreateRun run{.project = session.project,
                  .state = session.state,
                  .form = form,
                  .options = session.options,
                  .host = context.host,
                  .ask = ask,
                  .compression = compression,
                  .signing = &signing};
    const CreateResult result = RunCreate(run);
    if (result == CreateResult::Done && form.TargetMedia == Medium::Floppy)
        disks.RemoveDisksBehind(run.FloppiesUsed);
    return Report(context, ask, run, result);
}

} // namespace quillon::cli
