#include "runtime/log/json_log.h"

#include "platform/run_error.h"
#include "runtime/log/json_writer.h"
#include "runtime/log/result_names.h"

#include <utility>

namespace quillon {

namespace {

// What the end counts, under which name.
constexpr std::pair<Message, const char*> kCounted[] = {
    {Message::LogCopies, "files"},
    {Message::LogReplacesAtRestart, "filesAtRestart"},
    {Message::LogMakesFolder, "folders"},
    {Message::LogMakesShortcut, "shortcuts"},
    {Message::LogWritesRegistry, "registryWritten"},
    {Message::LogRemovesRegistry, "registryRemoved"},
    {Message::LogWritesIni, "iniValues"},
    {Message::LogRegisters, "registrations"},
    {Message::LogRegistersFont, "fonts"},
    {Message::LogRemoves, "filesRemoved"},
    {Message::LogRemovesAtRestart, "filesRemovedAtRestart"},
    {Message::LogRemovesFolder, "foldersRemoved"},
    {Message::LogSkips, "skipped"},
    {Message::LogCannotRemove, "notRemoved"},
    {Message::LogCannotUndo, "notUndone"},
};

std::unique_ptr<OutputFile> Open(FileSystem& files, const Text& path)
{
    return path.empty() ? nullptr : files.OpenOutput(path);
}

// "2004-03-01T12:30:05", of the machine's own clock.
Text TimeOf(const Machine& machine)
{
    const LocalTime now = machine.Now();
    return DateText(now) + "T" + TimeTextWithSeconds(now);
}

void WriteTo(std::unique_ptr<OutputFile>& file, const Text& record)
{
    if (!file)
        return;
    const Text line = record + "\n";
    try {
        file->Write(std::as_bytes(std::span(line)));
    } catch (const RunError&) {
        file.reset();
    }
}

void CloseFile(std::unique_ptr<OutputFile> file)
{
    if (file)
        RunErrorNumber([&] { file->Close(); });
}

// A script may end the setup with any code; everything is undone then.
const char* NameOfStop(ExitCode code)
{
    const bool isOfSuccess = code == ExitCode::Done || code == ExitCode::RestartNeeded ||
                             code == ExitCode::RestartStarted;
    return NameOfResult(isOfSuccess ? ExitCode::Failed : code);
}

} // namespace

JsonLog::JsonLog(FileSystem& files, const Machine& machine, const LogFiles& paths)
    : machine_(machine), file_(Open(files, paths.json)), result_(Open(files, paths.result))
{
}

void JsonLog::Action(Message message, std::string_view subject, std::string_view detail,
                     std::optional<Message> reason)
{
    ++counts_[std::size_t(message)];
    if (!file_)
        return;
    JsonWriter record;
    record.OpenObject();
    record.Add("time", TimeOf(machine_));
    record.Add("action", KeyOf(message).key);
    if (!subject.empty())
        record.Add("subject", subject);
    if (reason)
        record.Add("reason", KeyOf(*reason).key);
    if (!detail.empty())
        record.Add("detail", detail);
    record.Close();
    WriteTo(file_, record.Written());
}

void JsonLog::End(ExitCode code, RunEnd end, std::string_view error)
{
    JsonWriter record;
    record.OpenObject();
    record.Add("time", TimeOf(machine_));
    record.Add("action", "result");
    record.Add("result", end == RunEnd::Stopped ? NameOfStop(code) : NameOfResult(ExitCode::Done));
    record.Add("code", static_cast<std::int64_t>(code));
    record.AddFlag("restart", end == RunEnd::RestartDue);
    if (!error.empty())
        record.Add("error", error);
    record.OpenObject("counts");
    for (const auto& [message, name] : kCounted)
        record.Add(name, static_cast<std::int64_t>(counts_[std::size_t(message)]));
    record.Close();
    record.Close();
    WriteTo(file_, record.Written());
    WriteTo(result_, record.Written());
    CloseFile(std::move(file_));
    CloseFile(std::move(result_));
}

} // namespace quillon
