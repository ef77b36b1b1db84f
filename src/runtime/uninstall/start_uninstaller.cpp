#include "runtime/uninstall/start_uninstaller.h"

#include "formats/runtime_programs.h"
#include "helpers/drive_path.h"
#include "helpers/windows_path.h"
#include "runtime/uninstall_entry_key.h"

namespace quillon {

namespace {

std::optional<UninstallCommand> InstalledCommand(const UninstallerStart& start)
{
    for (const InstallScope scope : {start.switches.scope, InstallScope::CurrentUser}) {
        const auto data =
            start.target.ReadValue(UninstallEntryKey(start.product, scope), kUninstallString);
        if (const auto text = data ? TextOf(*data) : std::nullopt)
            return ReadUninstallCommand(*text);
    }
    return std::nullopt;
}

// A user without rights can write the entry of a user: only a program of ours in a place that no
// user with fewer rights can write to is started with the setup's rights.
bool IsOurUninstaller(const UninstallerStart& start, const Text& program)
{
    return EqualIgnoreCase(ExtractFilename(program), RuntimePrograms::kUninstaller.name) &&
           IsAbsolutePath(program) && start.files.FileExists(program) &&
           start.target.IsOfTrustedUser(program);
}

Text Arguments(const UninstallCommand& command, const Switches& switches)
{
    Text arguments = "\"" + command.journal + "\"";
    const auto add = [&](bool isGiven, const Text& word) {
        if (isGiven)
            arguments += " " + word;
    };
    const auto file = [&](const char* word, const Text& path) {
        add(!path.empty(), Text(word) + "\"" + path + "\"");
    };
    add(switches.silent && !switches.passive, "/S");
    add(switches.passive, "/passive");
    add(switches.suppressBoxes, "/SUPPRESSMSGBOXES");
    add(switches.closeApplications == CloseApplications::Always, "/CLOSEAPPLICATIONS");
    add(switches.closeApplications == CloseApplications::Never, "/NOCLOSEAPPLICATIONS");
    add(switches.hasLog && switches.logFile.empty(), "/LOG");
    file("/LOG=", switches.logFile);
    file("/LOGJSON=", switches.jsonLogFile);
    file("/RESULT=", switches.resultFile);
    add(switches.restartCode != ExitCode::RestartNeeded,
        "/RESTARTEXITCODE=" + NumberText(static_cast<int>(switches.restartCode)));
    return arguments;
}

} // namespace

ExitCode StartUninstaller(const UninstallerStart& start)
{
    const auto command = InstalledCommand(start);
    if (!command)
        throw SetupFailure(ExitCode::NothingInstalled,
                           start.texts(Message::NotInstalled, start.product));
    if (!IsOurUninstaller(start, command->program))
        throw SetupFailure(
            ExitCode::AlreadyUninstalled,
            start.texts(Message::UninstallerMissing, start.product, command->program));
    return static_cast<ExitCode>(start.run(command->program, Arguments(*command, start.switches)));
}

} // namespace quillon
