#include "runtime/install/data_access.h"

#include "formats/package_files.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/ask.h"
#include "platform/run_error.h"
#include "runtime/journal/rollback.h"
#include "runtime/texts/failure_reason.h"

namespace quillon {

namespace {

// Unpack without a window, and set up without one and without a restart.
constexpr const char* kHidden = "/Q /C:\"setup /QNT\"";

// Why it is not run; nothing where it is.
std::optional<Reason> ReasonNotToRun(const DataAccessInput& input)
{
    if (input.setup.project.Databases.MDAAskUser == kOff)
        return std::nullopt;
    if (input.silent)
        return Reason{Message::SkipSilent};
    const Text title = input.texts(Message::Title, input.setup.project.ProjectName.ProjectName);
    if (!input.ask.YesNo(title, input.texts[Message::DataAccessQuestion], Ask::Stops::OnNo))
        return Reason{Message::SkipUserSaysNo};
    return std::nullopt;
}

int RunIt(const DataAccessInput& input, const Text& path)
{
    const bool isHidden = input.silent || input.setup.project.Databases.MDAHiddenInstall != kOff;
    const Text copy = JoinPath(input.workFolder, kDataAccessProgram);
    input.host.files.CopyContent(path, copy);
    input.ask.AddStatusLine(input.texts[Message::DataAccess]);
    input.log.Line(Message::LogStarts, kDataAccessProgram);
    const int code = input.target.RunProgram({copy, isHidden ? kHidden : "", isHidden});
    input.log.Line(Message::LogEndsWithCode, kDataAccessProgram, NumberText(code));
    RunErrorNumber([&] { RemoveEvenReadOnly(input.host.files, copy); });
    return code;
}

} // namespace

const PlannedFile* FindDataAccess(const InstallPlan& plan)
{
    for (const PlannedFile& file : plan.files)
        if (EqualIgnoreCase(file.row->name, kDataAccessArchive))
            return &file;
    return nullptr;
}

bool InstallDataAccess(const DataAccessInput& input)
{
    const PlannedFile* const file = FindDataAccess(input.plan);
    if (file == nullptr || !input.host.files.FileExists(file->path))
        return false;
    const Text part = input.texts(Message::PartDataAccess, kDataAccessArchive);
    if (const auto reason = ReasonNotToRun(input)) {
        input.log.Skipped(part, *reason);
        return false;
    }
    try {
        const int code = RunIt(input, file->path);
        const bool needsRestart = code == int(ExitCode::RestartNeeded);
        if (code != 0 && !needsRestart)
            input.log.Skipped(part, {Message::SkipEndedWithCode, NumberText(code)});
        return needsRestart;
    } catch (const RunError& error) {
        input.log.Skipped(part, ReasonOf(error));
        return false;
    }
}

} // namespace quillon
