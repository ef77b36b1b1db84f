// QNXUNIN: removes a product. Its command line names the product's install log; without a name it
// takes the one beside itself.
#include "helpers/number_text.h"
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
#include "runtime/win32/win_target.h"
#include "runtime/win32/window_ask.h"

#include <objbase.h>

using namespace quillon;

namespace {

// A running program can't be deleted, but it can be moved: out of the product's folder, so that the
// folder can go. Empty where it has to stay, and where it can't even be moved, from one drive to
// another.
Text MoveSelfAway(const Host& host, const Text& logPath)
{
    if (!GoesWithProduct(host.files, logPath, ProgramPath()))
        return {};
    const Text away = JoinPath(host.machine.GetTempDir(),
                               "QNXUNIN" + NumberText(host.machine.Random(1000000)) + ".TMP");
    const bool moved = MoveFileExW(WidePath(ProgramPath()).c_str(), WidePath(away).c_str(), 0);
    return moved ? away : Text();
}

constexpr std::string_view kCleanSwitch = "/CLEAN=";

// Starts a second copy of this program, which waits for this one's end and deletes its file. The
// copy's own file goes when the last handle to it is closed, and that is the one it inherits.
void RemoveSelfAtEnd(const Text& away)
{
    const Text copy = away + ".EXE";
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE self = nullptr;
    DuplicateHandle(GetCurrentProcess(), GetCurrentProcess(), GetCurrentProcess(), &self,
                    SYNCHRONIZE, TRUE, 0);
    if (!CopyFileW(WidePath(away).c_str(), WidePath(copy).c_str(), TRUE))
        return;
    const HANDLE last =
        CreateFileW(WidePath(copy).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE,
                    &inherited, OPEN_EXISTING, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    std::wstring line = Wide("\"" + copy + "\" " + Text(kCleanSwitch) +
                             NumberText(reinterpret_cast<INT_PTR>(self)) + " " + away);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(Wide(copy).c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                       &startup, &process)) {
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    CloseHandle(last);
}

// The second copy's whole work: "/CLEAN=<the first one's handle> <the first one's file>".
int CleanUp(std::string_view line)
{
    const std::string_view rest = line.substr(kCleanSwitch.size());
    const auto parent = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(LeadingNumber(rest)));
    WaitForSingleObject(parent, INFINITE);
    const std::size_t blank = rest.find(' ');
    const bool hasPath = blank != std::string_view::npos;
    return hasPath && DeleteFileW(WidePath(Text(rest.substr(blank + 1))).c_str()) ? 0 : 1;
}

ExitCode RunUninstall(Host& host, Ask& ask, const UninstallerCommand& line,
                      const InstalledProduct& product)
{
    TextLog log;
    if (!line.switches.logFile.empty())
        log = TextLog(host.files, host.machine, line.switches.logFile, product.texts);
    WinTarget target;
    const Text away = MoveSelfAway(host, line.logPath);
    const ExitCode code = Uninstall({host, target, ask, log, line.logPath, product});
    log.Close();
    if (!away.empty())
        RemoveSelfAtEnd(away);
    return code;
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
    TextLog log;
    const Text folder = ProgramFolder();
    const EarlierRun earlier = FinishInterrupted({host, target, log}, folder);
    if (earlier == EarlierRun::Stuck)
        throw RunError(ErrorNumber::kPermissionDenied, folder);
    return earlier;
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int)
{
    StartProgram();
    const Text given = TrimBlanks(Narrow(commandLine));
    if (given.substr(0, kCleanSwitch.size()) == kCleanSwitch)
        return CleanUp(given);
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
        const EarlierRun earlier = FinishEarlier(host);
        const auto product = ReadInstalledProduct(files, line.logPath);
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
