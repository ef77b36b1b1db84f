// Opening the project manager over a thousand projects on the real disk.
#include "platform/this_host.h"
#include "project/new_project.h"
#include "project/project_file.h"
#include "shell/settings_file.h"
#include "support/one_file_host.h"
#include "tools/forms/ProjectManager.h"
#include "tools/project_list.h"

#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

constexpr int kProjects = 1000;
constexpr int kRows = 100;

/// A machine with that many projects, all of them in the list.
struct Desk {
    Desk()
    {
        Project project;
        OpenProjectState state;
        ResetToNewProject(project, state, "C:\\Quillon");
        for (int row = 0; row < kRows; ++row) {
            FileListRow& added = project.Files.rows.emplace_back();
            added[Filename] = "fil" + NumberText(row) + ".dat";
            added[Destination] = "%DESTDIR\\Data";
            added[Size] = "10,5";
            added[Source] = "c:\\data\\" + added[Filename];
        }
        machine.files.DirCreate("C:\\P");
        std::vector<ListedProject> listed;
        for (int i = 0; i < kProjects; ++i) {
            project.ProjectName.ProjectName = "Projekt " + NumberText(i);
            const Text path = "C:\\P\\" + NumberText(i) + ".qnp";
            WriteProjectFile(project, path, machine.host, user);
            listed.push_back({.path = path});
        }
        SaveProjectList(machine.files, settings, {}, listed);
    }

    ThisHost machine;
    test::SilentUser user;
    Session session = NewSession(machine.host, user, "C:\\Quillon");
    Text settings = SettingsFile(machine.machine);
};

void ReadTheList(benchmark::State& state)
{
    Desk desk;
    for (auto _ : state)
        if (ReadProjectList(desk.machine.host, desk.settings).projects.size() != kProjects)
            state.SkipWithError("projects are missing");
}

void OpenTheWindow(benchmark::State& state)
{
    Desk desk;
    for (auto _ : state) {
        ProjectManager form(desk.session, nullptr);
        form.show();
        QApplication::processEvents();
    }
}

BENCHMARK(ReadTheList)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenTheWindow)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon::bench

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    qputenv("QUILLON_DRIVE_C", folder.filePath("c").toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", folder.filePath("config").toLocal8Bit());
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
