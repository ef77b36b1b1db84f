// QNS32X: the setup proper. The starter copies it to a private folder and passes it the package's
// folder, so that the disk with the package can be changed while it works. It is installed with the
// product, where another starter runs it as the uninstaller.
#include "formats/runtime_programs.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/win32/held_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "platform/win32/win_machine.h"
#include "runtime/command_line/answer_file.h"
#include "runtime/pages/design_files.h"
#include "runtime/passive_ask.h"
#include "runtime/refused_restart.h"
#include "runtime/setup_program.h"
#include "runtime/test_mode.h"
#include "runtime/win32/machine/library_container.h"
#include "runtime/win32/machine/restart_machine.h"
#include "runtime/win32/machine/restart_manager.h"
#include "runtime/win32/machine/setup_files.h"
#include "runtime/win32/machine/win_target.h"
#include "runtime/win32/pages/page_window.h"
#include "runtime/win32/processes/private_folder.h"
#include "runtime/win32/processes/program_start.h"
#include "runtime/win32/processes/run_to_end.h"
#include "runtime/win32/processes/single_instance.h"
#include "runtime/win32/processes/start_as_user.h"
#include "runtime/win32/programs/qns32x/uninstaller.h"
#include "runtime/win32/registration/register_process.h"
#include "runtime/win32/screen/screen_sound.h"
#include "runtime/win32/screen/screen_window.h"
#include "runtime/win32/windows/message_box.h"
#include "runtime/win32/windows/window_ask.h"

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

// No pages under /S.
class NoPages : public PageView {
public:
    PageAction Show(SetupPage&, const PageListener&) override { return PageAction::Cancel; }
    void Hide() override {}
    void SetVariables(const SetupVariables&) override {}
};

Text ProjectTitle(const LoadedPackage& package)
{
    return package.texts(Message::Title, package.setup.project.ProjectName.ProjectName);
}

// The variables before the user has made any choice.
SetupVariables VariablesOf(const LoadedPackage& package, const Host& host, const Target& target,
                           const Switches& switches)
{
    return MakeSetupVariables({package.setup, host, target, switches.packageFolder,
                               switches.destination, switches.scope});
}

// `package` and `design` outlive the result.
ScreenWindow::MakeScreen ScreenOf(const LoadedPackage& package, const DesignFiles& design)
{
    return [&](const SetupVariables& variables, int width, int height) {
        return std::make_unique<DesignScreen>(package.setup, variables, design, width, height);
    };
}

// Without a private folder, since a test leaves no files on the machine.
ExitCode TestOnWindows(HINSTANCE instance, Host& host, const Switches& switches,
                       LanguageTexts& texts)
{
    LoadedPackage package = LoadForTest(host.files, switches.packageFolder, *switches.testMode);
    texts = package.texts;
    // Nothing is registered, so no helper is needed.
    WinTarget target{Text()};
    const DesignFiles design(host.files, {}, switches.packageFolder,
                             DesignFiles::Names::AbsolutePaths);
    if (switches.silent) {
        SilentAsk silent;
        NoPages none;
        return RunTest({host, target, silent, switches, none, [](const TestWindow&) {}}, package);
    }
    ScreenWindow screen(instance, ProjectTitle(package),
                        VariablesOf(package, host, target, switches), ScreenOf(package, design));
    const auto run = [&](Ask& ask, PageView& pages) {
        return RunTest({host, target, ask, switches, pages,
                        [&](const TestWindow&) {
                            screen.Show();
                            screen.WaitForEscape();
                        }},
                       package);
    };
    // Only for its boxes, which are shown where those of an installation would be.
    WindowAsk boxes(instance, ProjectTitle(package), package.texts, WindowAsk::CanCancel::Yes,
                    screen.Handle());
    PageWindow pages(
        instance, boxes, package.texts,
        [&](const Text& bitmap) { return design.SidePicture(bitmap); }, &screen);
    ScreenSound sound(design, package.setup.project.DesSound.BackSoundFilename, {});
    sound.Start();
    return run(boxes, pages);
}

SetupEnd InstallOnWindows(HINSTANCE instance, Host& host, const Switches& switches,
                          LanguageTexts& texts)
{
    FileSystem& files = host.files;
    const LoadedPackage package = LoadPackage(files, switches.packageFolder, switches.languageFile);
    // Only an installation looks for other setups that run: all other tasks change nothing on the
    // machine, and the uninstaller looks itself.
    std::optional<SingleInstance> only;
    if (switches.task == SetupTask::Install)
        only.emplace();
    RestartManager users(RestartManager::StartsAgain::All);
    texts = package.texts;
    const PrivateFolder work(host);
    WinTarget target(JoinPath(work.Path(), RuntimePrograms::kRegistryHelper.inPackage));
    const OpenContainer openContainer =
        LibraryContainers(UnzipLibrary(files, switches.packageFolder));
    const auto run = [&](Ask& ask, PageView* pages, BackgroundSound* sound) {
        return RunSetup({host, target, ask, openContainer, switches, work.Path(), pages, sound,
                         only && only->IsAlreadyRunning(), StartAsUser, &users, RunToEnd,
                         MayRestartMachine, OpenHeldFile},
                        package);
    };
    if (switches.silent && !switches.passive) {
        SilentAsk silent;
        return run(silent, nullptr, nullptr);
    }
    const auto canCancel =
        switches.canCancel ? WindowAsk::CanCancel::Yes : WindowAsk::CanCancel::No;
    if (switches.passive || switches.task != SetupTask::Install) {
        WindowAsk window(instance, ProjectTitle(package), package.texts, canCancel);
        // All other tasks show a box, or start a program with a window of its own.
        const bool hasProgress = switches.task == SetupTask::Install ||
                                 switches.task == SetupTask::Extract ||
                                 switches.task == SetupTask::Plan;
        if (hasProgress)
            window.Show();
        if (!switches.passive)
            return run(window, nullptr, nullptr);
        PassiveAsk passive(window);
        return run(passive, nullptr, nullptr);
    }
    const DesignFiles design(files, openContainer, switches.packageFolder,
                             DesignFiles::Names::InPackage);
    ScreenWindow screen(instance, ProjectTitle(package),
                        VariablesOf(package, host, target, switches), ScreenOf(package, design));
    WindowAsk window(instance, ProjectTitle(package), package.texts, canCancel, screen.Handle());
    const section::DesPercentGauge& gauge = package.setup.project.DesPercentGauge;
    window.PlaceAt(gauge.GaugeAlignmentH, gauge.GaugeAlignmentV);
    PageWindow pages(
        instance, window, package.texts,
        [&](const Text& bitmap) { return design.SidePicture(bitmap); }, &screen);
    window.Show();
    ScreenSound sound(design, package.setup.project.DesSound.BackSoundFilename, work.Path());
    return run(window, &pages, &sound);
}

// `texts` become those of the package as soon as they have been read.
SetupEnd RunOnWindows(HINSTANCE instance, Switches switches, LanguageTexts& texts)
{
    SetupFiles files;
    WinMachine machine;
    Host host{files, machine};
    if (switches.packageFolder.empty())
        switches.packageFolder = ProgramFolder();
    LoadAnswers(files, switches);
    return switches.testMode ? SetupEnd{TestOnWindows(instance, host, switches, texts)}
                             : InstallOnWindows(instance, host, switches, texts);
}

int RunSetupProgram(HINSTANCE instance, const Text& line)
{
    const Switches switches = ReadSwitches(line);
    LanguageTexts texts;
    SetupEnd end{ExitCode::Failed};
    try {
        end = RunOnWindows(instance, switches, texts);
    } catch (const std::exception& error) {
        // Nothing has changed: an installation that fails is undone before the exception gets here.
        WinFiles files;
        WinMachine machine;
        const SetupFailure failure = FailBeforeSetup({files, machine}, switches, error, texts);
        end.code = failure.Code();
        if (MayAsk(switches))
            ShowMessageBox(nullptr, {"Quillon", failure.what(), MB_OK | MB_ICONSTOP}, texts);
    }
    // The setup has removed its temporary files by now.
    if (end.startsMachineAnew && !RestartMachine()) {
        end.code = CodeToEndWith(ExitCode::RestartNeeded, switches);
        WinFiles files;
        LogRefusedRestart({files, WinMachine(), texts, end.logs, end.code});
        // A restart was announced or agreed to, so the user has to know that there is none.
        ShowMessageBox(
            nullptr, {end.title, texts[Message::RestartNeeded], MB_OK | MB_ICONINFORMATION}, texts);
    }
    return static_cast<int>(end.code);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int)
{
    StartProgram();
    const Text given = TrimBlanks(Narrow(commandLine));
    if (const auto code = RegisterForParent(given))
        return *code;
    if (const auto code = PlayForParent(given))
        return *code;
    OleInitialize(nullptr);
    const auto uninstaller = ReadStarterLine(given);
    const int code =
        uninstaller ? RunUninstaller(instance, *uninstaller) : RunSetupProgram(instance, given);
    OleUninitialize();
    return code;
}
