#include "runtime/action_log.h"

#include "platform/run_error.h"
#include "runtime/failure_reason.h"

namespace quillon {

ActionLog::ActionLog(FileSystem& files, const Machine& machine, const Text& path,
                     const LanguageTexts& texts)
    : machine_(&machine), texts_(&texts), file_(files.OpenOutput(path))
{
}

void ActionLog::TextLine(std::string_view text)
{
    if (!file_)
        return;
    const LocalTime now = machine_->Now();
    const Text line =
        DateText(now) + " " + TimeTextWithSeconds(now) + "  " + Text(text) + Text(kLineBreak);
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
}

void ActionLog::Skipped(std::string_view what, const Reason& reason)
{
    if (file_)
        Line(Message::LogSkips, what, (*texts_)(reason));
}

void ActionLog::CannotUndo(const std::exception& error)
{
    if (file_)
        Line(Message::LogCannotUndo, FailureReason(error, *texts_));
}

void ActionLog::CannotRemove(std::string_view what, const std::exception& error)
{
    if (file_)
        Line(Message::LogCannotRemove, what, FailureReason(error, *texts_));
}

void ActionLog::Close()
{
    const std::unique_ptr<OutputFile> file = std::move(file_);
    try {
        if (file)
            file->Close();
    } catch (const RunError&) {
        // The disk gave out at the very end; what it took is there to read.
    }
}

} // namespace quillon
