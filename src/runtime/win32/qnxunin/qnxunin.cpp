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
#include "runtime/win32/qnxunin/unregister_process.h"
#include "runtime/win32/register_server.h"
#include "runtime/win32/win_target.h"
#include "runtime/win32/window_ask.h"

#include <objbase.h>

using namespace quillon;

namespace {

class UninstallTarget : public WinTarget {
public:
    Registration RegisterServer(const Text& path, bool) override
    {
        switch (UnregisterInOwnProcess(path)) {
        case kRegistrationDone:
            return Registration::Done;
        case kNotSelfRegistering:
            return Registration::NotSelfRegistering;
        default:
            return Registration::Failed;
        }
    }
};

ExitCode RunUninstall(Host& host, Ask& ask, const UninstallerCommand& line,
                      const InstalledProduct& product)
{
    ActionLog log;
    if (!line.switches.logFile.empty())
        log = ActionLog(host.files, host.machine, line.switches.logFile, product.texts);
    // A folder that is the current one of a program can't be removed.
    SetCurrentDirectoryW(Wide(host.machine.GetWindowsDir()).c_str());
    UninstallTarget target;
    SelfRemoval self(host);
    const ExitCode code = Uninstall({host, target, ask, log, line.logPath, product,
                                     [&](const Text& program) { self.MoveAway(program); }});
    log.Close();
    self.StartCleaner();
    return code;
}

// Nothing where there is no log that this program believes.
std::optional<InstalledProduct> FindProduct(const FileSystem& files, const Text& logPath)
{
    return IsInSameFolder(files, logPath, ProgramPath()) ? ReadInstalledProduct(files, logPath)
                                                         : std::nullopt;
}

ExitCode RunWithWindow(HINSTANCE instance, Host& host, const UninstallerCommand& line,
                       const std::optional<InstalledProduct>& product)
{
    const LanguageTexts texts = product ? product->texts : LanguageTexts();
    const Text name = product ? product->name : Text();
    const Text title = texts(Message::UninstallTitle, name);
    WindowAsk window(instance, title, texts);
    if (line.switches.badSwitch) {
        window.Critical(title, texts(Message::BadSwitch, *line.switches.badSwitch));
        return ExitCode::BadSwitch;
    }
    if (!product) {
        window.Critical(title, texts(Message::UninstallNoLog, line.logPath));
        return ExitCode::Failed;
    }
    if (!window.YesNo(title, texts(Message::UninstallQuestion, name), Ask::Stops::OnNo))
        return ExitCode::Cancelled;
    window.Show();
    const ExitCode code = RunUninstall(host, window, line, *product);
    window.Hide();
    window.Inform(
        title,
        texts(code == ExitCode::Done ? Message::UninstallDone : Message::UninstallPartly, name));
    return code;
}

ExitCode RunSilently(Host& host, const UninstallerCommand& line,
                     const std::optional<InstalledProduct>& product)
{
    if (line.switches.badSwitch)
        return ExitCode::BadSwitch;
    SilentAsk silent;
    return product ? RunUninstall(host, silent, line, *product) : ExitCode::Failed;
}

// A setup that was killed is brought to its end first, so that the log tells what is there.
EarlierRun FinishEarlier(Host& host)
{
    WinTarget target;
    ActionLog log;
    const Text folder = ProgramFolder();
    const EarlierRun earlier = FinishInterrupted({host, target, log}, folder);
    if (earlier == EarlierRun::Incomplete)
        throw RunError(ErrorNumber::kPermissionDenied, folder);
    return earlier;
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int)
{
    StartProgram();
    const Text given = TrimBlanks(Narrow(commandLine));
    if (const auto code = CleanUpForParent(given))
        return *code;
    if (const auto code = UnregisterForParent(given))
        return *code;
    OleInitialize(nullptr);
    UninstallerCommand line = ReadUninstallerCommand(given);
    if (line.logPath.empty())
        line.logPath = JoinPath(ProgramFolder(), "QNXUNIN.LOG");
    LanguageTexts texts;
    ExitCode code = ExitCode::Failed;
    try {
        WinFiles files;
        WinMachine machine;
        Host host{files, machine};
        // A line that is refused changes nothing.
        const EarlierRun earlier = line.switches.badSwitch ? EarlierRun::None : FinishEarlier(host);
        const auto product = FindProduct(files, line.logPath);
        if (product)
            texts = product->texts;
        if (!product && earlier == EarlierRun::Finished)
            code = ExitCode::Done; // a first installation that was killed has been taken back
        else
            code = line.switches.silent ? RunSilently(host, line, product)
                                        : RunWithWindow(instance, host, line, product);
    } catch (const std::exception& error) {
        if (!line.switches.silent)
            ShowMessageBox(nullptr,
                           {"Quillon", texts(Message::UninstallFailed, FailureReason(error, texts)),
                            MB_OK | MB_ICONSTOP},
                           texts);
    }
    OleUninitialize();
    return static_cast<int>(code);
}
