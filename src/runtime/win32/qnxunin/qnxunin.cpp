// QNXUNIN: removes a product. Its command line names the product's install log; without a name it
// takes the one beside itself.
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "platform/win32/win_machine.h"
#include "runtime/failure_reason.h"
#include "runtime/rollback.h"
#include "runtime/silent_ask.h"
#include "runtime/switches.h"
#include "runtime/uninstall.h"
#include "runtime/win32/message_box.h"
#include "runtime/win32/private_folder.h"
#include "runtime/win32/program_start.h"
#include "runtime/win32/qnxunin/self_removal.h"
#include "runtime/win32/register_process.h"
#include "runtime/win32/win_target.h"
#include "runtime/win32/window_ask.h"

#include <objbase.h>

using namespace quillon;

namespace {

struct UninstallRun {
    Host& host;
    WinTarget& target;
    const UninstallerCommand& line;
    ActionLog log; // of /LOG=
    LanguageTexts texts;
};

ExitCode RunUninstall(UninstallRun& run, Ask& ask, const InstalledProduct& product)
{
    Host& host = run.host;
    // A folder that is the current one of a program can't be removed.
    SetCurrentDirectoryW(Wide(host.machine.GetWindowsDir()).c_str());
    SelfRemoval self(host);
    const ExitCode code = Uninstall({host, run.target, ask, run.log, run.line.logPath, product,
                                     [&](const Text& program) { self.MoveAway(program); }});
    run.log.Close();
    self.StartCleaner();
    return code;
}

// Nothing where there is no log that this program believes.
std::optional<InstalledProduct> FindProduct(UninstallRun& run)
{
    const FileSystem& files = run.host.files;
    if (!IsBelievable(files, run.target, run.line.logPath, ProgramPath()))
        return std::nullopt;
    auto product = ReadInstalledProduct(files, run.line.logPath);
    if (product)
        run.texts = product->texts;
    return product;
}

// There is nothing to remove, or something that is not believed.
ExitCode CodeWithoutProduct(const UninstallRun& run)
{
    return run.host.files.FileExists(run.line.logPath) ? ExitCode::Failed
                                                       : ExitCode::NothingInstalled;
}

ExitCode RunWithWindow(HINSTANCE instance, UninstallRun& run,
                       const std::optional<InstalledProduct>& product)
{
    const LanguageTexts& texts = run.texts;
    const Text name = product ? product->name : Text();
    const Text title = texts(Message::UninstallTitle, name);
    // What has been removed can't be brought back half-way.
    WindowAsk window(instance, title, texts, WindowAsk::CanCancel::No);
    if (run.line.switches.badSwitch) {
        window.Critical(title, texts(Message::BadSwitch, *run.line.switches.badSwitch));
        return ExitCode::BadSwitch;
    }
    if (!product) {
        window.Critical(title, texts(Message::UninstallNoLog, run.line.logPath));
        return CodeWithoutProduct(run);
    }
    if (!window.YesNo(title, texts(Message::UninstallQuestion, name), Ask::Stops::OnNo))
        return ExitCode::Cancelled;
    window.Show();
    const ExitCode code = RunUninstall(run, window, *product);
    window.Hide();
    window.Inform(
        title,
        texts(code == ExitCode::Done ? Message::UninstallDone : Message::UninstallPartly, name));
    return code;
}

ExitCode RunSilently(UninstallRun& run, const std::optional<InstalledProduct>& product)
{
    if (run.line.switches.badSwitch)
        return ExitCode::BadSwitch;
    SilentAsk silent;
    return product ? RunUninstall(run, silent, *product) : CodeWithoutProduct(run);
}

void OpenLog(UninstallRun& run)
{
    const Text& path = run.line.switches.logFile;
    if (!path.empty())
        run.log = ActionLog(run.host.files, run.host.machine, path, run.texts);
}

// A setup that was killed is brought to its end first, so that the log says what is there.
EarlierRun FinishEarlier(UninstallRun& run)
{
    const Text folder = ProgramFolder();
    const EarlierRun earlier = FinishInterrupted({run.host, run.target, run.log}, folder);
    if (earlier == EarlierRun::Incomplete)
        throw RunError(ErrorNumber::kPermissionDenied, folder);
    return earlier;
}

ExitCode RunOnWindows(HINSTANCE instance, UninstallRun& run)
{
    auto product = FindProduct(run);
    EarlierRun earlier = EarlierRun::None;
    // A line that is refused changes nothing.
    if (!run.line.switches.badSwitch) {
        OpenLog(run);
        earlier = FinishEarlier(run);
    }
    if (earlier == EarlierRun::Finished) {
        product = FindProduct(run);
        if (!product)
            return ExitCode::Done; // a first installation that was killed has been taken back
    }
    return run.line.switches.silent ? RunSilently(run, product)
                                    : RunWithWindow(instance, run, product);
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
    UninstallRun run{host, target, line, {}, {}};
    ExitCode code = ExitCode::Failed;
    try {
        code = RunOnWindows(instance, run);
    } catch (const std::exception& error) {
        if (!line.switches.silent)
            ShowMessageBox(nullptr,
                           {"Quillon",
                            run.texts(Message::UninstallFailed, FailureReason(error, run.texts)),
                            MB_OK | MB_ICONSTOP},
                           run.texts);
    }
    OleUninitialize();
    return static_cast<int>(code);
}
