#include "platform/posix/start_program.h"

#include "helpers/ascii.h"
#include "platform/posix/environment.h"
#include "platform/posix/open_file.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

namespace {

/// The child's part: nothing here may take memory, since another thread may hold the heap's lock.
[[noreturn]] void BecomeProgram(char* const* arguments, int failurePipe)
{
    // The grandchild has no parent to wait for it, so no zombie process stays.
    setsid();
    const pid_t grandchild = fork();
    if (grandchild > 0)
        _exit(0);
    if (grandchild == 0)
        execv(arguments[0], arguments);
    const char failed = 1;
    const ssize_t written = write(failurePipe, &failed, 1);
    _exit(written == 1 ? 0 : 1);
}

} // namespace

std::vector<std::string> SplitArguments(std::string_view arguments)
{
    std::vector<std::string> split;
    bool isQuoted = false;
    bool isInside = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const char character = arguments[i];
        if (IsBlank(character) && !isQuoted) {
            isInside = false;
            continue;
        }
        if (!isInside)
            split.emplace_back();
        isInside = true;
        if (character == '\\' && i + 1 < arguments.size() && arguments[i + 1] == '"')
            split.back() += arguments[++i];
        else if (character == '"')
            isQuoted = !isQuoted;
        else
            split.back() += character;
    }
    return split;
}

std::string FindOnPath(std::string_view name)
{
    const std::string variable = EnvironmentVariable("PATH");
    std::string_view path = variable;
    while (!path.empty()) {
        const std::size_t end = path.find(':');
        const std::string candidate = std::string(path.substr(0, end)) + "/" + std::string(name);
        if (access(candidate.c_str(), X_OK) == 0)
            return candidate;
        path.remove_prefix(end == std::string_view::npos ? path.size() : end + 1);
    }
    return {};
}

bool StartDetached(const std::vector<std::string>& command)
{
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);

    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return false;
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);

    const pid_t child = fork();
    if (child < 0)
        return false;
    if (child == 0)
        BecomeProgram(arguments.data(), writing.Number());

    {
        const Descriptor closedHere = std::move(writing);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    // The pipe closes when the program starts; a byte in it means that it did not.
    char failed = 0;
    ssize_t count = read(reading.Number(), &failed, 1);
    while (count < 0 && errno == EINTR)
        count = read(reading.Number(), &failed, 1);
    return count == 0;
}

} // namespace quillon
