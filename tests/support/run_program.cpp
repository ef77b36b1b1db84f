#include "support/run_program.h"

#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {

namespace {

/// Pointers to the texts, with a null behind the last one, as the system wants them.
std::vector<char*> Pointers(const std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (const std::string& text : texts)
        pointers.push_back(const_cast<char*>(text.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

/// This process's environment with `changes` over it.
std::vector<std::string> EnvironmentWith(const std::map<std::string, std::string>& changes)
{
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        const std::string text = *variable;
        if (changes.count(text.substr(0, text.find('='))) == 0)
            variables.push_back(text);
    }
    for (const auto& [name, value] : changes)
        variables.push_back(name + "=" + value);
    return variables;
}

[[noreturn]] void BecomeAsNobody(char* const* command, char* const* environment,
                                 const std::string& outFile, const std::string& errFile)
{
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC;
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(open(outFile.c_str(), kFlags, 0600), STDOUT_FILENO);
    dup2(open(errFile.c_str(), kFlags, 0600), STDERR_FILENO);
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0))
        _exit(126);
    execve(command[0], command, environment);
    _exit(127);
}

// The copy of a process that forks costs more than most programs that are run, so only what has to
// do something in between is started that way. 0 where there is no such program.
pid_t Start(char* const* command, char* const* environment, const std::string& outFile,
            const std::string& errFile)
{
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_t streams;
    posix_spawn_file_actions_init(&streams);
    posix_spawn_file_actions_addopen(&streams, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&streams, STDOUT_FILENO, outFile.c_str(), kFlags, 0600);
    posix_spawn_file_actions_addopen(&streams, STDERR_FILENO, errFile.c_str(), kFlags, 0600);
    pid_t child = 0;
    const bool isStarted =
        posix_spawn(&child, command[0], &streams, nullptr, command, environment) == 0;
    posix_spawn_file_actions_destroy(&streams);
    return isStarted ? child : 0;
}

} // namespace

ProgramRun RunProgram(const std::vector<std::string>& command,
                      const std::map<std::string, std::string>& environment, RunAs user)
{
    const TempFolder outputs;
    const std::string out = outputs.Path("out");
    const std::string err = outputs.Path("err");
    const std::vector<std::string> variables = EnvironmentWith(environment);
    const std::vector<char*> words = Pointers(command);
    const std::vector<char*> named = Pointers(variables);
    pid_t child = 0;
    if (user == RunAs::Self)
        child = Start(words.data(), named.data(), out, err);
    else if (child = fork(); child == 0)
        BecomeAsNobody(words.data(), named.data(), out, err);
    if (child == 0)
        return {127, {}, {}};
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, outputs.Get("out"), outputs.Get("err")};
}

} // namespace quillon::test
