#include "wine/wine.h"

#include "helpers/text.h"
#include "wine/run_program.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <thread>

namespace quillon::test {

namespace fs = std::filesystem;

namespace {

constexpr int kCanaryCode = 42;
// Files from this size on are programs of Wine, which nothing in a test rewrites; a link stands for
// the copy. Small ones may be rewritten in place, as the registry is.
constexpr std::uintmax_t kLinkedFrom = 64 * 1024;

const fs::path kBuild = QUILLON_BUILD_FOLDER;
const fs::path kScripts = fs::path(QUILLON_SOURCE_FOLDER) / "tests" / "wine";

std::string Bits()
{
    return std::to_string(WineBits());
}

// The folder that a 32-bit Wine takes for the root of the file system; empty where that is ours.
std::string Root()
{
    if (WineBits() == 64)
        return {};
    static const ProgramResult prepared = RunProgram({kScripts / "prepare-wine32.sh"});
    const std::string root = prepared.output.substr(0, prepared.output.find('\n'));
    return prepared.exitCode == 0 ? root : std::string();
}

fs::path Template()
{
    return WorkFolder() / "template";
}

ProgramResult RunWine(const fs::path& prefix, const std::vector<std::string>& arguments)
{
    std::vector<std::string> command{kScripts / "run-wine.sh", Bits(), prefix};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return RunProgram(command);
}

// The code of run-wine.sh for a Wine that is missing, and the shell's own for a program that is
// missing or that the kernel doesn't run.
bool CanNotRunHere(const ProgramResult& result)
{
    return result.exitCode >= 125 && result.exitCode <= 127;
}

std::runtime_error WineFailure(const std::string& what, const ProgramResult& result)
{
    return std::runtime_error("Wine of " + Bits() + " bits " + what + ": exit code " +
                              std::to_string(result.exitCode) + "\n" + result.output);
}

void EndServer(const fs::path& prefix)
{
    RunWine(prefix, {"wineserver", "-k"});
    RunWine(prefix, {"wineserver", "-w"});
}

std::string ReadFile(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Stops all programs of a prefix where they are, but not its server. To ask the server to end them
// takes as long as a small installation.
void Freeze(const fs::path& prefix)
{
    const std::string own =
        std::string(1, '\0') + "WINEPREFIX=" + prefix.string().substr(Root().size()) + '\0';
    std::error_code gone; // programs end while they are listed
    for (const fs::directory_entry& entry : fs::directory_iterator("/proc", gone)) {
        const int process = std::atoi(entry.path().filename().c_str());
        const std::string variables = std::string(1, '\0') + ReadFile(entry.path() / "environ");
        const bool isServer = ReadFile(entry.path() / "comm").starts_with("wineserver");
        if (process > 0 && !isServer && variables.find(own) != std::string::npos)
            kill(process, SIGSTOP);
    }
}

void CopyPrefix(const fs::path& from, const fs::path& to)
{
    fs::create_directory(to);
    for (const fs::directory_entry& entry : fs::directory_iterator(from)) {
        const fs::path target = to / entry.path().filename();
        if (entry.is_symlink())
            fs::copy_symlink(entry.path(), target);
        else if (entry.is_directory())
            CopyPrefix(entry.path(), target);
        else if (entry.file_size() >= kLinkedFrom && entry.path().extension() != ".reg")
            fs::create_hard_link(entry.path(), target);
        else
            fs::copy_file(entry.path(), target);
    }
}

fs::path FindIgnoringCase(const fs::path& folder, const std::string& name)
{
    if (fs::exists(folder / name) || !fs::is_directory(folder))
        return folder / name;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        if (EqualIgnoreCase(entry.path().filename().string(), name))
            return entry.path();
    return folder / name;
}

} // namespace

int WineBits()
{
    const char* bits = std::getenv("QUILLON_WINE");
    return bits != nullptr && std::string(bits) == "64" ? 64 : 32;
}

fs::path RuntimeFolder()
{
    return WineBits() == 64 ? kBuild / "runtime-x86_64" / "Release"
                            : kBuild / "quillon" / "Release";
}

fs::path TestProgramFolder()
{
    return kBuild / (WineBits() == 64 ? "windows-x86_64" : "windows-i686");
}

fs::path WorkFolder()
{
    static const fs::path folder = [] {
        std::string pattern = Root() + "/tmp/quillon-wine-XXXXXX";
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no work folder: " + pattern);
        return fs::path(pattern);
    }();
    return folder;
}

std::string OnZ(const fs::path& path)
{
    const std::string below = path.string().substr(Root().size());
    return "Z:" + ReplaceAll(below, "/", "\\");
}

std::string PrepareWine()
{
    if (WineBits() == 32 && Root().empty())
        return "no 32-bit Wine could be prepared";
    const ProgramResult made = RunWine(Template(), {"wineboot", "--init"});
    if (CanNotRunHere(made))
        return "there is no Wine of " + Bits() + " bits that runs here";
    if (made.exitCode != 0)
        throw WineFailure("makes no prefix", made);

    const fs::path song = WorkFolder() / "song";
    const fs::path canary = WorkFolder() / "canary.exe";
    fs::copy_file(TestProgramFolder() / "canary.exe", canary);
    const ProgramResult sung =
        RunWine(Template(), {OnZ(canary), OnZ(song), std::to_string(kCanaryCode)});
    EndServer(Template());
    if (sung.exitCode != kCanaryCode || ReadFile(song) != "sings")
        throw WineFailure("does not run a program of this kind", sung);
    fs::copy_file(TestProgramFolder() / "runner.exe", WorkFolder() / "runner.exe");
    return {};
}

void CleanUpAfterWine()
{
    EndServer(Template());
    // Debian's Wine keeps its sockets in a folder of /tmp that this file names, for all the copies.
    const std::string sockets = ReadFile(Template() / "wineserver");
    if (sockets.starts_with("wine-") && sockets.find('/') == std::string::npos)
        fs::remove_all(fs::path(Root() + "/tmp") / sockets);
    fs::remove_all(WorkFolder());
}

WinePrefix::WinePrefix()
{
    static int number = 0;
    folder_ = WorkFolder() / ("prefix" + std::to_string(++number));
    CopyPrefix(Template(), folder_);
}

WinePrefix::~WinePrefix()
{
    Stop();
    fs::remove_all(folder_);
}

unsigned WinePrefix::Run(const std::string& program, const std::string& arguments) const
{
    return RunCommandLine('"' + program + '"' + (arguments.empty() ? "" : ' ' + arguments));
}

bool WinePrefix::RunAndKill(const std::string& program, const std::string& arguments,
                            const std::function<bool()>& isTime) const
{
    std::atomic<bool> hasEnded = false;
    std::thread run([&] {
        RunWine(folder_, {program, arguments});
        hasEnded = true;
    });
    while (!hasEnded && !isTime())
        std::this_thread::yield();
    const bool kills = !hasEnded;
    if (kills) {
        Freeze(folder_);
        Stop();
    }
    run.join();
    return kills;
}

unsigned WinePrefix::RunCommandLine(const std::string& command) const
{
    const fs::path file = folder_ / "command";
    const fs::path code = folder_ / "command.code";
    fs::remove(code);
    std::ofstream(file, std::ios::binary) << command;
    const ProgramResult result = RunWine(folder_, {OnZ(WorkFolder() / "runner.exe"), OnZ(file)});
    EXPECT_TRUE(fs::exists(code)) << command << " did not run:\n" << result.output;
    const std::string text = ReadFile(code);
    return text.empty() ? ~0U : static_cast<unsigned>(std::stoul(text));
}

void WinePrefix::WaitForAll() const
{
    RunWine(folder_, {"wineserver", "-w"});
}

void WinePrefix::Restart() const
{
    WaitForAll();
    const ProgramResult started = RunWine(folder_, {"wineboot"});
    EXPECT_EQ(started.exitCode, 0) << started.output;
}

void WinePrefix::Stop() const
{
    EndServer(folder_);
}

fs::path WinePrefix::OnHost(const std::string& windowsPath) const
{
    fs::path found = DriveC();
    std::string rest = windowsPath.substr(windowsPath.find('\\') + 1);
    for (std::string part; !rest.empty();) {
        const std::size_t end = rest.find('\\');
        part = rest.substr(0, end);
        rest = end == std::string::npos ? "" : rest.substr(end + 1);
        found = FindIgnoringCase(found, part);
    }
    return found;
}

} // namespace quillon::test
