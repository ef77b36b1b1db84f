#include "platform/posix/posix_programs.h"

#include "platform/missing_program.h"
#include "platform/posix/open_file.h"
#include "platform/posix/start_program.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* kInputAsFile = "/dev/stdin";
constexpr std::size_t kMaxOutput = 64 * 1024;
constexpr int kPollMilliseconds = 50;

struct Pipe {
    Descriptor reading;
    Descriptor writing;
};

Pipe MakePipe()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw RunError(ErrorNumber::kDeviceIo);
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

void CloseEnd(Descriptor& end)
{
    const Descriptor closedHere = std::move(end);
}

// All input fits into the pipe, so it is written before the program starts: the write can neither
// block nor fail for want of a reader.
Descriptor InputOf(const ProgramOrder& order)
{
    if (order.input.size() > kMaxProgramInput)
        throw RunError(ErrorNumber::kOverflow, order.program);
    Pipe pipe = MakePipe();
    if (write(pipe.writing.Number(), order.input.data(), order.input.size()) !=
        static_cast<ssize_t>(order.input.size()))
        throw RunError(ErrorNumber::kDeviceIo, order.program);
    return std::move(pipe.reading);
}

/// The child's part: nothing here may take memory, since another thread may hold the heap's lock.
[[noreturn]] void BecomeProgram(char* const* arguments, int input, int output)
{
    // Without a terminal the program can't ask the user directly.
    setsid();
    if (dup2(input, STDIN_FILENO) >= 0 && dup2(output, STDOUT_FILENO) >= 0 &&
        dup2(output, STDERR_FILENO) >= 0)
        execv(arguments[0], arguments);
    _exit(127);
}

/// Reads until the program has closed its outputs; false where its time was over before.
bool CollectOutput(int reading, int maxSeconds, Text& output, const std::function<void()>& onWait)
{
    const auto end = Clock::now() + std::chrono::seconds(maxSeconds);
    std::array<char, 4096> piece{};
    for (;;) {
        pollfd watched{reading, POLLIN, 0};
        const int ready = poll(&watched, 1, kPollMilliseconds);
        if (onWait)
            onWait();
        if (maxSeconds > 0 && Clock::now() >= end)
            return false;
        if (ready <= 0)
            continue;
        const ssize_t count = read(reading, piece.data(), piece.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return true;
        if (output.size() < kMaxOutput)
            output.append(piece.data(), static_cast<std::size_t>(count));
    }
}

/// Ends the child even where `onWait` throws.
class RunningChild {
public:
    explicit RunningChild(pid_t id) : id_(id) {}
    ~RunningChild()
    {
        if (id_ > 0) {
            End();
            Wait();
        }
    }
    RunningChild(const RunningChild&) = delete;
    RunningChild& operator=(const RunningChild&) = delete;

    // It leads a session of its own, so whatever it has started ends with it.
    void End() const { kill(-id_, SIGKILL); }
    int Wait()
    {
        int status = 0;
        while (waitpid(id_, &status, 0) < 0 && errno == EINTR) {
        }
        id_ = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t id_;
};

class PosixWorkFolder : public WorkFolder {
public:
    PosixWorkFolder(Text path, std::string hostPath)
        : path_(std::move(path)), hostPath_(std::move(hostPath))
    {
    }
    ~PosixWorkFolder() override
    {
        std::error_code failed;
        std::filesystem::remove_all(hostPath_, failed);
    }

    const Text& Path() const override { return path_; }

private:
    Text path_;
    std::string hostPath_;
};

} // namespace

bool PosixPrograms::IsInstalled(const Text& program) const
{
    return !FindOnPath(program).empty();
}

std::vector<std::string> PosixPrograms::HostCommand(const ProgramOrder& order) const
{
    std::vector<std::string> command{FindOnPath(order.program)};
    if (command.front().empty())
        throw MissingProgram(order.program, order.program);
    for (const ProgramArgument& argument : order.arguments) {
        if (argument.kind == ProgramArgument::Kind::InputAsFile)
            command.emplace_back(kInputAsFile);
        else if (argument.kind == ProgramArgument::Kind::Plain)
            command.push_back(argument.text);
        else if (const auto path = drives_.ToHost(argument.text))
            command.push_back(*path);
        else
            throw RunError(ErrorNumber::kPathNotFound, argument.text);
    }
    return command;
}

ProgramOutcome PosixPrograms::Run(const ProgramOrder& order, const std::function<void()>& onWait)
{
    const std::vector<std::string> command = HostCommand(order);
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);

    Descriptor input = InputOf(order);
    Pipe output = MakePipe();
    const pid_t id = fork();
    if (id < 0)
        throw RunError(ErrorNumber::kCannotStart, order.program);
    if (id == 0)
        BecomeProgram(arguments.data(), input.Number(), output.writing.Number());
    RunningChild child(id);
    CloseEnd(input);
    CloseEnd(output.writing);

    ProgramOutcome outcome;
    outcome.tookTooLong =
        !CollectOutput(output.reading.Number(), order.maxSeconds, outcome.output, onWait);
    if (outcome.tookTooLong)
        child.End();
    outcome.exitCode = child.Wait();
    return outcome;
}

std::unique_ptr<WorkFolder> PosixPrograms::MakeWorkFolder()
{
    std::string hostPath = tempFolder_ + "/quillon-XXXXXX";
    if (mkdtemp(hostPath.data()) == nullptr)
        throw RunError(ErrorNumber::kPathFileAccess,
                       drives_.ToWindows(tempFolder_).value_or(tempFolder_));
    const auto path = drives_.ToWindows(hostPath);
    if (!path) {
        rmdir(hostPath.c_str());
        throw RunError(ErrorNumber::kPathNotFound, hostPath);
    }
    return std::make_unique<PosixWorkFolder>(*path, hostPath);
}

} // namespace quillon
