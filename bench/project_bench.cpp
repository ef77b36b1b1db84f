// Loading and saving a project: the time per row must not grow with the number of rows.
#include "project/new_project.h"
#include "project/project_file.h"
#include "support/one_file_host.h"

#include <benchmark/benchmark.h>

namespace quillon {

namespace {

constexpr const char* kPath = "C:\\a.qnp";
constexpr const char* kToolFolder = "C:\\Quillon";

Project ProjectOfRows(std::int64_t count)
{
    Project project;
    OpenProjectState state;
    ResetToNewProject(project, state, kToolFolder);
    for (std::int64_t i = 0; i < count; ++i) {
        const Text name = "fil" + NumberText(i) + ".dat";
        FileListRow& row = project.Files.rows.emplace_back();
        row[Filename] = name;
        row[Destination] = "%DESTDIR\\Data";
        row[Size] = "10,5";
        row[Date] = "2004-02-29";
        row[Time] = "12:30";
        row[CopyOptions] = "D";
        row[Extension] = "dat";
        row[Source] = "c:\\data\\räknaren\\" + name;
    }
    return project;
}

void SaveProject(benchmark::State& state)
{
    test::OneFile files("");
    test::PlainMachine machine;
    test::SilentUser user;
    Host host{files, machine};
    Project project = ProjectOfRows(state.range(0));
    for (auto _ : state)
        WriteProjectFile(project, kPath, host, user);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(SaveProject)->Arg(8000)->Arg(32000)->Unit(benchmark::kMillisecond);

void LoadProject(benchmark::State& state)
{
    test::OneFile files("");
    test::PlainMachine machine;
    test::SilentUser user;
    Host host{files, machine};
    Project project = ProjectOfRows(state.range(0));
    WriteProjectFile(project, kPath, host, user);
    for (auto _ : state) {
        project.Files.rows.clear();
        ReadProjectFile(project, kPath, host, user, kToolFolder);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(LoadProject)->Arg(8000)->Arg(32000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillon
