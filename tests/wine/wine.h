// The Wine that this run of the test program is about, and prefixes (a drive C: and a registry) of
// its own for each test.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quillon::test {

/// 32 or 64: what QUILLON_WINE says.
int WineBits();

/// Where the setup runtime for this Wine is.
std::filesystem::path RuntimeFolder();
/// Where the Windows programs of the tests lie.
std::filesystem::path TestProgramFolder();

/// A folder that this Wine can see, for packages and their sources; it goes when the tests end.
std::filesystem::path WorkFolder();
/// The host path as Windows programs know it.
std::string OnZ(const std::filesystem::path& path);

/// Why tests can't run here; empty where they can. Makes what all prefixes are copied from. Throws
/// where there is a Wine that runs, but fails.
std::string PrepareWine();
void CleanUpAfterWine();

class WinePrefix {
public:
    WinePrefix();
    ~WinePrefix();
    WinePrefix(const WinePrefix&) = delete;
    WinePrefix& operator=(const WinePrefix&) = delete;

    /// The program's exit code, all 32 bits of it. `arguments` stand as they are on the command
    /// line. Fails the test where the program can't be started.
    unsigned Run(const std::string& program, const std::string& arguments = {}) const;

    /// Starts the program and kills everything in the prefix as soon as `isTime` says so. False
    /// where the program came to its end before.
    bool RunAndKill(const std::string& program, const std::string& arguments,
                    const std::function<bool()>& isTime) const;

    /// A whole command line, as the system's list of installed programs keeps one.
    unsigned RunCommandLine(const std::string& commandLine) const;

    /// Restarts the machine, which removes what could not be removed while it ran.
    void Restart() const;
    /// Waits until every program in the prefix has ended by itself.
    void WaitForAll() const;
    /// Ends the server, which only then writes the registry.
    void Stop() const;

    std::filesystem::path Folder() const { return folder_; }
    std::filesystem::path DriveC() const { return folder_ / "drive_c"; }
    /// Where a file of drive C: is on the host; found without regard to case as far as it exists.
    std::filesystem::path OnHost(const std::string& windowsPath) const;

private:
    std::filesystem::path folder_;
};

} // namespace quillon::test
