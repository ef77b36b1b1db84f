#include "runtime/log/action_log.h"

#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/texts/failure_reason.h"

namespace quillon {

ActionLog::ActionLog(FileSystem& files, const Machine& machine, const LogFiles& paths,
                     const LanguageTexts& texts)
    : machine_(&machine), texts_(&texts),
      file_(paths.readable.empty() ? nullptr : files.OpenOutput(paths.readable))
{
    if (!paths.json.empty() || !paths.result.empty())
        json_ = std::make_unique<JsonLog>(files, machine, paths);
}

void ActionLog::TextLine(std::string_view text)
{
    if (!file_)
        return;
    const Text line = LogLine(*machine_, text);
    try {
        file_->Write(std::as_bytes(std::span(line)));
    } catch (const RunError&) {
        file_.reset();
    }
}

void ActionLog::Line(Message message, std::string_view first, std::string_view second)
{
    if (file_)
        TextLine((*texts_)(message, first, second));
    if (json_)
        json_->Action(message, first, second, std::nullopt);
}

void ActionLog::Because(Message message, std::string_view what, std::string_view detail,
                        const std::optional<Reason>& reason)
{
    if (file_)
        TextLine(what.empty() ? (*texts_)(message, detail) : (*texts_)(message, what, detail));
    if (json_)
        json_->Action(message, what, detail,
                      reason ? std::optional(reason->message) : std::nullopt);
}

void ActionLog::Skipped(std::string_view what, const Reason& reason)
{
    if (file_ || json_)
        Because(Message::LogSkips, what, (*texts_)(reason), reason);
}

void ActionLog::CannotUndo(const std::exception& error)
{
    if (file_ || json_)
        Because(Message::LogCannotUndo, {}, FailureReason(error, *texts_), ReasonOf(error));
}

void ActionLog::CannotRemove(std::string_view what, const std::exception& error)
{
    if (file_ || json_)
        Because(Message::LogCannotRemove, what, FailureReason(error, *texts_), ReasonOf(error));
}

void ActionLog::End(ExitCode code, RunEnd end, std::string_view error)
{
    if (json_)
        json_->End(code, end, error);
    json_.reset();
}

void ActionLog::Close()
{
    const std::unique_ptr<OutputFile> file = std::move(file_);
    try {
        if (file)
            file->Close();
    } catch (const RunError&) {
        // The disk is full. The log keeps what has been written so far.
    }
}

Text LogLine(const Machine& machine, std::string_view text)
{
    const LocalTime now = machine.Now();
    return DateText(now) + " " + TimeTextWithSeconds(now) + "  " + Text(text) + Text(kLineBreak);
}

void OpenLogs(ActionLog& log, FileSystem& files, const Machine& machine, const LogFiles& paths,
              const LanguageTexts& texts)
{
    try {
        log = ActionLog(files, machine, paths, texts);
    } catch (const RunError&) {
        RunErrorNumber([&] { log = ActionLog(files, machine, {{}, {}, paths.result}, texts); });
        throw;
    }
}

Text NewFileInTemp(const FileSystem& files, const Machine& machine, std::string_view program,
                   std::string_view ending)
{
    const LocalTime now = machine.Now();
    const Text stem =
        JoinPath(machine.GetTempDir(), Text(program) + "-" + ReplaceAll(DateText(now), "-", "") +
                                           "-" + ReplaceAll(TimeTextWithSeconds(now), ":", ""));
    for (int n = 1;; ++n) {
        const Text path = stem + (n == 1 ? Text() : "-" + NumberText(n)) + Text(ending);
        if (!files.FileExists(path) && !files.DirExists(path))
            return path;
    }
}

LogFiles LogFilesOf(const Switches& switches, const FileSystem& files, const Machine& machine,
                    std::string_view program)
{
    LogFiles paths{switches.logFile, switches.jsonLogFile, switches.resultFile};
    if (switches.hasLog && paths.readable.empty())
        paths.readable = NewFileInTemp(files, machine, program, ".LOG");
    return paths;
}

} // namespace quillon
