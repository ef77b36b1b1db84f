#include "runtime/restart.h"

namespace quillon {

ExitCode DecideRestart(const RestartInput& input)
{
    const bool never = input.options.NeverRestartWindows != kOff;
    const bool always = input.options.RestartWindows != kOff && !never;
    if (!input.isNeeded && !always)
        return ExitCode::Done;
    if (never || !input.mayRestart)
        return ExitCode::RestartNeeded;
    if (always) {
        input.ask.Inform(input.title, input.texts[Message::RestartNow]);
        return ExitCode::RestartStarted;
    }
    return input.ask.YesNo(input.title, input.texts[Message::RestartQuestion], Ask::Stops::OnNo)
               ? ExitCode::RestartStarted
               : ExitCode::RestartNeeded;
}

} // namespace quillon
