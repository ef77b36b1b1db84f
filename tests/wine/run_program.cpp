#include "wine/run_program.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {

namespace {

// Long enough for the slowest machine; a program that waits for a click would wait for ever.
constexpr const char* kSecondsAtMost = "180";

[[noreturn]] void Become(const std::vector<std::string>& command,
                         const std::map<std::string, std::string>& settings, int output)
{
    for (const auto& [name, value] : settings)
        setenv(name.c_str(), value.c_str(), 1);
    std::vector<const char*> arguments{"timeout", "--kill-after=5", kSecondsAtMost};
    for (const std::string& argument : command)
        arguments.push_back(argument.c_str());
    arguments.push_back(nullptr);
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(output, STDERR_FILENO);
    execvp(arguments[0], const_cast<char* const*>(arguments.data()));
    _exit(127);
}

} // namespace

ProgramResult RunProgram(const std::vector<std::string>& command,
                         const std::map<std::string, std::string>& settings)
{
    // A file, not a pipe: a server that the program leaves running would hold a pipe open.
    char name[] = "/tmp/quillon-output-XXXXXX";
    const int file = mkostemp(name, O_CLOEXEC);
    if (file < 0)
        throw std::runtime_error("no file for a program's output");
    unlink(name);

    const pid_t child = fork();
    if (child == 0)
        Become(command, settings, file);
    int status = 0;
    waitpid(child, &status, 0);

    ProgramResult result;
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    lseek(file, 0, SEEK_SET);
    std::array<char, 4096> piece{};
    for (ssize_t count = 0; (count = read(file, piece.data(), piece.size())) > 0;)
        result.output.append(piece.data(), static_cast<std::size_t>(count));
    close(file);
    return result;
}

} // namespace quillon::test
