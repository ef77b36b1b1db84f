// quillon: the desktop program. Its whole command line is the path of one project.
#include "app/MainForm.h"
#include "platform/posix/posix_host.h"
#include "ui/QtAsk.h"

#include <QApplication>

int main(int count, char** words)
{
    using namespace quillon;
    QApplication application(count, words);
    PosixHost machine;
    const HostPaths paths{
        .toHost = [&](const Text& path) { return machine.drives.ToHost(path); },
        .toWindows = [&](const std::string& path) { return machine.drives.ToWindows(path); }};
    QtAsk ask(machine.host, paths);
    Session session = NewSession(machine.host, ask, machine.ProgramFolder());
    MainForm form(session);
    ask.onStatusText = [&](const Text& text) { form.ShowStatusText(text); };
    form.show();
    return QApplication::exec();
}
