// How loading and saving a project grow with its file list. Four times the rows may take at most
// five times as long.
#include "helpers/number_text.h"
#include "memory_machine.h"
#include "project/project_file.h"

#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

Project ProjectOfRows(std::int64_t count)
{
    Project project;
    for (std::int64_t number = 0; number < count; ++number) {
        const Text name = "Fil " + NumberText(number) + " är här.dat";
        FileListRow& row = project.Files.rows.emplace_back();
        row[Filename] = name;
        row[Destination] = "%DESTDIR\\Mapp " + NumberText(number % 100);
        row[Size] = "12,1";
        row[Date] = "2004-02-29";
        row[Time] = "12:30";
        row[CopyOptions] = "DA";
        row[Extension] = "dat";
        row[Source] = "c:\\data\\mapp " + NumberText(number % 100) + "\\" + name;
    }
    return project;
}

void SaveProject(benchmark::State& state)
{
    SmallFilesEverywhere files;
    PlainMachine machine;
    NobodyToAsk ask;
    Host host{files, machine};
    Project project = ProjectOfRows(state.range(0));
    for (auto _ : state)
        WriteProjectFile(project, "C:\\p.qnp", host, ask);
}

void LoadProject(benchmark::State& state)
{
    SmallFilesEverywhere files;
    PlainMachine machine;
    NobodyToAsk ask;
    Host host{files, machine};
    Project written = ProjectOfRows(state.range(0));
    WriteProjectFile(written, "C:\\p.qnp", host, ask);
    for (auto _ : state) {
        Project project;
        const ReadEnd end = ReadProjectFile(project, "C:\\p.qnp", host, ask, "C:\\Quillon");
        if (end != ReadEnd::Whole || project.Files.rows.size() != written.Files.rows.size())
            state.SkipWithError("the project did not come back whole");
    }
}

BENCHMARK(SaveProject)->Arg(8000)->Arg(32000)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadProject)->Arg(8000)->Arg(32000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon::bench
