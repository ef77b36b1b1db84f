#include "runtime/text_log.h"

#include "platform/run_error.h"

namespace quillon {

TextLog::TextLog(FileSystem& files, const Machine& machine, const Text& path)
    : machine_(&machine), file_(files.OpenOutput(path))
{
}

void TextLog::Line(std::string_view text)
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

void TextLog::Skipped(std::string_view what, std::string_view reason)
{
    Line("Hoppar över " + Text(what) + ": " + Text(reason));
}

void TextLog::Close()
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
