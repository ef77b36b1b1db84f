#include "support/run_program.h"

#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {

namespace {

[[noreturn]] void Become(const std::vector<std::string>& command, const std::string& outFile,
                         const std::string& errFile,
                         const std::map<std::string, std::string>& environment, RunAs user)
{
    for (const auto& [name, value] : environment)
        setenv(name.c_str(), value.c_str(), 1);
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC;
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(open(outFile.c_str(), kFlags, 0600), STDOUT_FILENO);
    dup2(open(errFile.c_str(), kFlags, 0600), STDERR_FILENO);
    constexpr uid_t kNobody = 65534;
    const bool changes = user == RunAs::Nobody && geteuid() == 0;
    if (changes && (setgid(kNobody) != 0 || setuid(kNobody) != 0))
        _exit(126);
    std::vector<char*> words;
    for (const std::string& word : command)
        words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    execv(words[0], words.data());
    _exit(127);
}

} // namespace

ProgramRun RunProgram(const std::vector<std::string>& command,
                      const std::map<std::string, std::string>& environment, RunAs user)
{
    const TempFolder outputs;
    const pid_t child = fork();
    if (child == 0)
        Become(command, outputs.Path("out"), outputs.Path("err"), environment, user);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, outputs.Get("out"), outputs.Get("err")};
}

} // namespace quillon::test
