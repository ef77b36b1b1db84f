#include "runtime/win32/programs/qns32x/uninstaller.h"

#include "formats/runtime_programs.h"
#include "helpers/windows_path.h"
#include "platform/win32/program_path.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_machine.h"
#include "runtime/passive_ask.h"
#include "runtime/uninstall/uninstall_program.h"
#include "runtime/win32/machine/restart_manager.h"
#include "runtime/win32/machine/setup_files.h"
#include "runtime/win32/machine/win_target.h"
#include "runtime/win32/processes/single_instance.h"
#include "runtime/win32/windows/list_window.h"
#include "runtime/win32/windows/message_box.h"
#include "runtime/win32/windows/window_ask.h"
#include "runtime/work_folders.h"

namespace quillon {

namespace {

class NoWindows : public UninstallView {
public:
    bool ShowList(const ListPage&) override { return true; }
    void ShowProgress(bool) override {}
};

class Windows : public UninstallView {
public:
    Windows(HINSTANCE instance, WindowAsk& window, bool hasLists)
        : instance_(instance), window_(window), hasLists_(hasLists)
    {
    }
    bool ShowList(const ListPage& page) override
    {
        return !hasLists_ || ShowListWindow(instance_, page);
    }
    void ShowProgress(bool isAtWork) override { isAtWork ? window_.Show() : window_.Hide(); }

private:
    HINSTANCE instance_;
    WindowAsk& window_;
    const bool hasLists_;
};

// The starter's file is in the main folder. The starter waits for this program, so its file can't
// be deleted; it is moved into the private folder that this program runs from. When the starter
// ends, it finds itself there and has the folder removed.
class WaitingStarter : public RunningProgram {
public:
    WaitingStarter(const FileSystem& files, const Text& path) : files_(files), path_(path) {}

    void MoveAway(const Text& path) override
    {
        if (EqualIgnoreCase(files_.ShortPath(path_), files_.ShortPath(path)))
            MoveFileExW(
                WidePath(path).c_str(),
                WidePath(JoinPath(ProgramFolder(), RuntimePrograms::kMovedUninstaller)).c_str(), 0);
    }

private:
    const FileSystem& files_;
    const Text& path_;
};

ExitCode RunOnWindows(HINSTANCE instance, UninstallProgram& program, const Switches& switches)
{
    program.Prepare();
    // A folder that is the current one of a program can't be removed.
    SetCurrentDirectoryW(Wide(WinMachine().GetWindowsDir()).c_str());
    if (switches.silent && !switches.passive) {
        SilentAsk silent;
        NoWindows none;
        return program.Run(silent, none);
    }
    // No cancelling, since what has been removed can't be brought back.
    WindowAsk window(instance, program.Title(), program.Texts(), WindowAsk::CanCancel::No);
    PassiveAsk passive(window);
    Windows windows(instance, window, !switches.passive);
    return program.Run(switches.passive ? static_cast<Ask&>(passive) : window, windows);
}

} // namespace

int RunUninstaller(HINSTANCE instance, const StarterLine& from)
{
    UninstallerCommand line = ReadUninstallerCommand(from.given);
    if (line.journalPath.empty())
        line.journalPath =
            JoinPath(ExtractDirectory(from.program), RuntimePrograms::kInstallJournal);
    SetupFiles files;
    WinMachine machine;
    Host host{files, machine};
    WinTarget target;
    const SingleInstance only;
    RestartManager users(RestartManager::StartsAgain::NotNamedOnes);
    WaitingStarter running(files, from.program);
    UninstallProgram program(
        {host, target, line, from.program, only.IsAlreadyRunning(), &users, &running});
    ExitCode code = ExitCode::Failed;
    try {
        code = RunOnWindows(instance, program, line.switches);
    } catch (const std::exception& error) {
        const Text text = program.Fail(error);
        if (MayAsk(line.switches))
            ShowMessageBox(nullptr, {"Quillon", text, MB_OK | MB_ICONSTOP}, program.Texts());
    }
    return static_cast<int>(code);
}

} // namespace quillon
