// The handler itself calls only what may be called from one. What it needs is made before: the
// stack on which it runs, since the program's own may be what has overflowed, and the library that
// reads the stack, which is loaded by its first use.
#include "platform/posix/fault_handler.h"

#include <array>
#include <csignal>
#include <cstring>
#include <execinfo.h>
#include <fcntl.h>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr unsigned kRescueSeconds = 5;
constexpr std::size_t kStackBytes = 1U << 20;
constexpr int kMaxFrames = 64;

struct Fault {
    int signal;
    const char* line;
};

constexpr Fault kFaults[] = {
    {SIGSEGV, "Signal: SIGSEGV\n"}, {SIGBUS, "Signal: SIGBUS\n"},   {SIGFPE, "Signal: SIGFPE\n"},
    {SIGILL, "Signal: SIGILL\n"},   {SIGABRT, "Signal: SIGABRT\n"},
};

struct FaultPlan {
    std::string noteFile;
    std::string heading;
    std::function<void()> rescue;
    std::unique_ptr<char[]> stack = std::make_unique<char[]>(kStackBytes);
};

// A signal handler gets no data but the signal, so the plan is a variable of this file.
const FaultPlan* plan = nullptr;

void Write(int file, const char* text)
{
    // A failure could not be reported any more.
    [[maybe_unused]] const ssize_t count = write(file, text, std::strlen(text));
}

void WriteNote(int signal)
{
    const int file = open(plan->noteFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (file < 0)
        return;
    Write(file, plan->heading.c_str());
    for (const Fault& fault : kFaults)
        if (fault.signal == signal)
            Write(file, fault.line);
    std::array<void*, kMaxFrames> frames{};
    backtrace_symbols_fd(frames.data(), backtrace(frames.data(), kMaxFrames), file);
    close(file);
}

void Rescue()
{
    const pid_t child = _Fork();
    if (child == 0) {
        for (const Fault& fault : kFaults)
            signal(fault.signal, SIG_DFL);
        alarm(kRescueSeconds);
        plan->rescue();
        _exit(0);
    }
    if (child > 0)
        waitpid(child, nullptr, 0);
}

void HandleFault(int signal)
{
    WriteNote(signal);
    Rescue();
    // The handler is removed by now (SA_RESETHAND), so this signal ends the program.
    raise(signal);
}

} // namespace

void InstallFaultHandler(const std::string& noteFile, const std::string& heading,
                         std::function<void()> rescue)
{
    // Lives as long as the process: a fault may come at its very end.
    static FaultPlan made;
    made.noteFile = noteFile;
    made.heading = heading;
    made.rescue = std::move(rescue);
    plan = &made;
    std::array<void*, 1> frame{};
    backtrace(frame.data(), 1);

    stack_t stack{};
    stack.ss_sp = made.stack.get();
    stack.ss_size = kStackBytes;
    sigaltstack(&stack, nullptr);
    for (const Fault& fault : kFaults) {
        struct sigaction handling {};
        handling.sa_handler = HandleFault;
        handling.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER | SA_ONSTACK);
        sigaction(fault.signal, &handling, nullptr);
    }
}

} // namespace quillon
