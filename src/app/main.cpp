// quillon: the desktop program. Its whole command line is the path of one project.
#include "app/MainForm.h"
#include "app/ask_forms.h"
#include "app/command_line.h"
#include "app/history/RecoveryKeeper.h"
#include "app/window/appearance.h"
#include "app/window/window_place.h"
#include "helpers/product.h"
#include "platform/this_host.h"
#include "shell/forms/DlgCreateFoldersAtMyDoc.h"
#include "shell/forms/DlgHelp.h"
#include "shell/projects_folder.h"
#include "shell/start.h"
#include "tools/fault_note.h"
#include "ui/dialogs/QtAsk.h"

#include <QtWidgets>

namespace {

using namespace quillon;

HostPaths PathsOf(const ThisHost& machine)
{
    return {.toHost = [&](const Text& path) { return machine.drives.ToHost(path); },
            .toWindows = [&](const std::string& path) { return machine.drives.ToWindows(path); }};
}

/// Settings of the machine that could not be used, all in one box.
void TellComplaints(const std::vector<Text>& complaints, Ask& ask)
{
    Text lines;
    for (const Text& complaint : complaints)
        lines.append(lines.empty() ? "" : "\r\n\r\n").append(complaint);
    if (!lines.empty())
        ask.Warn(Text(kProductName), lines);
}

/// Saves unsaved work when the program crashes, and writes a note for the support.
void PrepareForFaults(const Session& session, const HostPaths& paths, RecoveryCopy& copy)
{
    const auto note = paths.toHost(FaultNoteFile(session.options.OwnFolder));
    const Text version = "Programversion: " + Text(kToolVersion) + "\n";
    InstallFaultHandler(note.value_or(""), version, [&] {
        if (session.state.ProjectIsDirty != kOff)
            copy.Keep();
    });
}

} // namespace

int main(int argc, char** argv)
{
    InstallSignalHandlers();
    // Qt sees the program's name alone: a project may be called like one of its switches.
    int one = 1;
    QApplication application(one, argv);
    // No display name, which Qt would put after the title of every window.
    QApplication::setApplicationName("quillon");
    PrepareAppearance(application);

    ThisHost machine;
    const HostPaths paths = PathsOf(machine);
    const auto project =
        ProjectOfCommandLine({argv + 1, static_cast<std::size_t>(std::max(argc, 1) - 1)}, paths);
    if (!project)
        machine.complaints.push_back("Projektets namn på kommandoraden går ej att använda.");
    // After the command line, whose path may be a relative one.
    if (const auto folder = paths.toHost(machine.ProgramFolder()))
        QDir::setCurrent(QString::fromStdString(*folder));

    QtAsk ask(machine.host, paths);
    Session session = NewSession(machine.host, ask, machine.ProgramFolder(), machine.OwnFolder());
    session.programs = &machine.programs;
    StartSession(session);
    MainForm form(session, paths);
    ConnectFileListForms(ask, session);
    session.helpWindow = HelpWindowOf(form);
    RecoveryCopy copy(session);
    RecoveryKeeper keeper(form, copy);
    PrepareForFaults(session, paths, copy);
    ask.onStatusText = [&](const Text& text) { form.ShowStatusText(text); };
    form.onFirstActivation = [&] {
        TellComplaints(machine.complaints, ask);
        ActivateForTheFirstTime(session, form, project.value_or(""), [&] {
            const Text folder = OfferedProjectsFolder(machine.machine);
            OfferProjectsFolder(session, paths.toHost(folder).value_or(""), &form);
        });
        OfferLeftCopies(session, form, copy);
    };
    RestoreWindowPlace(form, session.Settings.WindowPlace);
    form.show();
    const int exitCode = QApplication::exec();
    // The window has been closed in the regular way, so what is unsaved was not to be saved.
    copy.Remove();
    return exitCode;
}
