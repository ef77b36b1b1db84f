#include "platform/posix/signals.h"

#include <csignal>
#include <cstring>
#include <unistd.h>

namespace quillon {

namespace {

struct TerminatingSignal {
    int signal;
    const char* line;
};

constexpr TerminatingSignal kTerminatingSignals[] = {
    {SIGHUP, "Avbrutet: terminalen stängdes (SIGHUP).\n"},
    {SIGINT, "Avbrutet från tangentbordet (SIGINT).\n"},
    {SIGTERM, "Avbrutet av ett annat program (SIGTERM).\n"},
    {SIGXCPU, "Avbrutet: den tillåtna processortiden är slut (SIGXCPU).\n"},
};

// Calls only functions that a signal handler may call. The handler is removed by now
// (SA_RESETHAND), so the second signal ends the program.
void ReportAndRaise(int signal)
{
    for (const TerminatingSignal& entry : kTerminatingSignals)
        if (entry.signal == signal) {
            // A failure could not be reported any more.
            [[maybe_unused]] const ssize_t count =
                write(STDERR_FILENO, entry.line, std::strlen(entry.line));
        }
    raise(signal);
}

// Unlike a signal that is ignored, one with a handler has its usual effect on programs that this
// one starts.
void IgnoreSignal(int) {}

} // namespace

void InstallSignalHandlers()
{
    struct sigaction tooLarge {};
    tooLarge.sa_handler = IgnoreSignal;
    sigaction(SIGXFSZ, &tooLarge, nullptr);
    for (const TerminatingSignal& entry : kTerminatingSignals) {
        struct sigaction before {};
        // What the user has switched off, with nohup, stays off.
        if (sigaction(entry.signal, nullptr, &before) != 0 || before.sa_handler != SIG_DFL)
            continue;
        struct sigaction handling {};
        handling.sa_handler = ReportAndRaise;
        handling.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
        sigaction(entry.signal, &handling, nullptr);
    }
}

} // namespace quillon
