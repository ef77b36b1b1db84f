// QNS32X: the setup proper. The starter copies it to a private folder and hands it the package's
// folder, so that the disk with the package can be changed while it works.
#include "formats/runtime_programs.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "platform/win32/win_machine.h"
#include "runtime/failure_reason.h"
#include "runtime/setup_program.h"
#include "runtime/silent_ask.h"
#include "runtime/win32/library_container.h"
#include "runtime/win32/message_box.h"
#include "runtime/win32/private_folder.h"
#include "runtime/win32/program_start.h"
#include "runtime/win32/register_process.h"
#include "runtime/win32/test_window.h"
#include "runtime/win32/win_target.h"
#include "runtime/win32/window_ask.h"

#include <objbase.h>

using namespace quillon;

namespace {

Text UnzipLibrary(const FileSystem& files, const Text& packageFolder)
{
    const Text own = JoinPath(ProgramFolder(), RuntimePrograms::kUnzipLibrary.inPackage);
    return files.FileExists(own)
               ? own
               : JoinPath(packageFolder, RuntimePrograms::kUnzipLibrary.inPackage);
}

// No private folder either: a test leaves nothing on the machine.
ExitCode TestOnWindows(HINSTANCE instance, Host& host, const Switches& switches,
                       LanguageTexts& texts)
{
    const LoadedPackage package =
        LoadForTest(host.files, switches.packageFolder, *switches.testMode);
    texts = package.texts;
    const auto run = [&](Ask& ask) {
        return RunTest({host, ask, switches,
                        [&](const TestWindow& window) { ShowTestWindow(instance, window); }},
                       package);
    };
    if (switches.silent) {
        SilentAsk silent;
        return run(silent);
    }
    // For its boxes; it is not shown itself.
    WindowAsk boxes(instance, {}, package.texts);
    return run(boxes);
}

ExitCode InstallOnWindows(HINSTANCE instance, Host& host, const Switches& switches,
                          LanguageTexts& texts)
{
    FileSystem& files = host.files;
    const LoadedPackage package = LoadPackage(files, switches.packageFolder);
    texts = package.texts;
    const PrivateFolder work(host);
    WinTarget target(JoinPath(work.Path(), RuntimePrograms::kRegistryHelper.inPackage));
    const auto run = [&](Ask& ask) {
        return RunSetup({host, target, ask,
                         LibraryContainers(UnzipLibrary(files, switches.packageFolder)), switches,
                         work.Path()},
                        package);
    };
    if (switches.silent) {
        SilentAsk silent;
        return run(silent);
    }
    WindowAsk window(instance,
                     package.texts(Message::Title, package.setup.project.ProjectName.ProjectName),
                     package.texts);
    window.Show();
    return run(window);
}

// `texts` become those of the package as soon as they have been read.
ExitCode RunOnWindows(HINSTANCE instance, Switches switches, LanguageTexts& texts)
{
    WinFiles files;
    WinMachine machine;
    Host host{files, machine};
    if (switches.packageFolder.empty())
        switches.packageFolder = ProgramFolder();
    return switches.testMode ? TestOnWindows(instance, host, switches, texts)
                             : InstallOnWindows(instance, host, switches, texts);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int)
{
    StartProgram();
    const Text given = Narrow(commandLine);
    if (const auto code = RegisterForParent(given))
        return *code;
    OleInitialize(nullptr);
    const Switches switches = ReadSwitches(given);
    LanguageTexts texts;
    ExitCode code = ExitCode::Failed;
    try {
        code = RunOnWindows(instance, switches, texts);
    } catch (const std::exception& error) {
        // Nothing was changed: what an installation does is undone before a failure comes here.
        if (!switches.silent)
            ShowMessageBox(nullptr,
                           {"Quillon", texts(Message::Failed, FailureReason(error, texts)),
                            MB_OK | MB_ICONSTOP},
                           texts);
    }
    OleUninitialize();
    return static_cast<int>(code);
}
