#include "support/killed_program.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {

namespace {

constexpr int kSyscallStop = SIGTRAP | 0x80;
constexpr int kCannotTrace = 125;

[[noreturn]] void Become(const std::vector<std::string>& command,
                         const std::map<std::string, std::string>& environment)
{
    for (const auto& [name, value] : environment)
        setenv(name.c_str(), value.c_str(), 1);
    const int nowhere = open("/dev/null", O_RDWR);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nowhere, stream);
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
        _exit(kCannotTrace);
    execv(arguments[0], arguments.data());
    _exit(127);
}

bool ChangesAFile(const __ptrace_syscall_info& info)
{
    switch (info.entry.nr) {
    case SYS_openat:
        return (info.entry.args[2] & (O_CREAT | O_TRUNC)) != 0;
    case SYS_write:
    case SYS_writev:
    case SYS_pwrite64:
        return info.entry.args[0] > STDERR_FILENO;
#ifdef SYS_open
    case SYS_open:
        return (info.entry.args[1] & (O_CREAT | O_TRUNC)) != 0;
    case SYS_rename:
    case SYS_link:
    case SYS_unlink:
    case SYS_mkdir:
    case SYS_rmdir:
#endif
    case SYS_renameat:
    case SYS_renameat2:
    case SYS_linkat:
    case SYS_unlinkat:
    case SYS_mkdirat:
    case SYS_fchmod:
    case SYS_ftruncate:
    case SYS_utimensat:
        return true;
    default:
        return false;
    }
}

/// True at the beginning of such a call; a call stops the program once more at its end.
bool StandsBeforeAChange(pid_t child)
{
    __ptrace_syscall_info info{};
    return ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, &info) > 0 &&
           info.op == PTRACE_SYSCALL_INFO_ENTRY && ChangesAFile(info);
}

} // namespace

KilledProgram RunAndKill(const std::vector<std::string>& command,
                         const std::map<std::string, std::string>& environment, int change)
{
    const pid_t child = fork();
    if (child == 0)
        Become(command, environment);
    KilledProgram run;
    int status = 0;
    waitpid(child, &status, 0);
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    int signal = 0;
    while (WIFSTOPPED(status)) {
        if (WSTOPSIG(status) == kSyscallStop && StandsBeforeAChange(child) &&
            ++run.changes == change)
            kill(child, SIGKILL);
        signal =
            WSTOPSIG(status) == kSyscallStop || WSTOPSIG(status) == SIGTRAP ? 0 : WSTOPSIG(status);
        ptrace(PTRACE_SYSCALL, child, nullptr, signal);
        if (waitpid(child, &status, 0) != child)
            break;
    }
    run.wasKilled = WIFSIGNALED(status);
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.canTrace = run.exitCode != kCannotTrace;
    return run;
}

} // namespace quillon::test
