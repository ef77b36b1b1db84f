// QNXUNIN: removes a product. Its command line names the product's install log; without a name it
// takes the one beside itself.
#include "helpers/windows_path.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "platform/win32/win_machine.h"
#include "runtime/failure_reason.h"
#include "runtime/passive_ask.h"
#include "runtime/uninstall_program.h"
#include "runtime/win32/list_window.h"
#include "runtime/win32/message_box.h"
#include "runtime/win32/only_setup.h"
#include "runtime/win32/private_folder.h"
#include "runtime/win32/program_start.h"
#include "runtime/win32/qnxunin/self_removal.h"
#include "runtime/win32/register_process.h"
#include "runtime/win32/restart_manager.h"
#include "runtime/win32/win_target.h"
#include "runtime/win32/window_ask.h"

#include <objbase.h>

using namespace quillon;

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

ExitCode RunOnWindows(HINSTANCE instance, UninstallProgram& program, const Switches& switches,
                      RunningProgram& running)
{
    program.Prepare();
    // A folder that is the current one of a program can't be removed.
    SetCurrentDirectoryW(Wide(WinMachine().GetWindowsDir()).c_str());
    if (switches.silent && !switches.passive) {
        SilentAsk silent;
        NoWindows none;
        return program.Run(silent, none, &running);
    }
    // What has been removed can't be brought back half-way.
    WindowAsk window(instance, program.Title(), program.Texts(), WindowAsk::CanCancel::No);
    PassiveAsk passive(window);
    Windows windows(instance, window, !switches.passive);
    return program.Run(switches.passive ? static_cast<Ask&>(passive) : window, windows, &running);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int)
{
    StartProgram();
    const Text given = TrimBlanks(Narrow(commandLine));
    if (const auto code = CleanUpForParent(given))
        return *code;
    if (const auto code = RegisterForParent(given))
        return *code;
    OleInitialize(nullptr);
    UninstallerCommand line = ReadUninstallerCommand(given);
    if (line.logPath.empty())
        line.logPath = JoinPath(ProgramFolder(), "QNXUNIN.LOG");
    WinFiles files;
    WinMachine machine;
    Host host{files, machine};
    WinTarget target;
    const OnlySetup only;
    // What they were started from is gone then.
    RestartManager users(RestartManager::StartsAgain::No);
    UninstallProgram program({host, target, line, ProgramPath(), only.IsNot(), &users});
    SelfRemoval running(host);
    ExitCode code = ExitCode::Failed;
    try {
        code = RunOnWindows(instance, program, line.switches, running);
    } catch (const std::exception& error) {
        const LanguageTexts& texts = program.Texts();
        if (!line.switches.silent)
            ShowMessageBox(nullptr,
                           {"Quillon", texts(Message::UninstallFailed, FailureReason(error, texts)),
                            MB_OK | MB_ICONSTOP},
                           texts);
    }
    OleUninitialize();
    return static_cast<int>(code);
}
