#include "runtime/refused_restart.h"

#include "helpers/number_text.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/log/action_log.h"

namespace quillon {

namespace {

Text CodeField(ExitCode code)
{
    return "\"code\":" + NumberText(int(code)) + ",";
}

// The record of the end is the last one, and quotation marks in its texts are escaped.
Text WithCode(Text records, ExitCode code)
{
    const Text former = CodeField(ExitCode::RestartStarted);
    const std::size_t at = records.rfind(former);
    return at == Text::npos ? records : records.replace(at, former.size(), CodeField(code));
}

template <class Change>
void ChangeLog(FileSystem& files, const Text& path, Change change)
{
    if (!path.empty())
        RunErrorNumber([&] { WriteWholeFile(files, path, change(ReadWholeFile(files, path))); });
}

} // namespace

void LogRefusedRestart(const RefusedRestart& refused)
{
    const auto withCode = [&](Text records) { return WithCode(std::move(records), refused.code); };
    ChangeLog(refused.files, refused.logs.json, withCode);
    ChangeLog(refused.files, refused.logs.result, withCode);
    ChangeLog(refused.files, refused.logs.readable, [&](const Text& lines) {
        return lines + LogLine(refused.machine, refused.texts(Message::LogRestartRefused,
                                                              NumberText(int(refused.code))));
    });
}

} // namespace quillon
