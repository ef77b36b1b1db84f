// Undo and redo with as many rows as a project can hold: the time of a step, and the memory of a
// long session, which the counter "MiB" shows.
#include "filelist/view/sort.h"
#include "shell/project_history.h"

#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

using Changed = ProjectHistory::Changed;

std::vector<FileListRow> Rows(std::int64_t count)
{
    std::vector<FileListRow> rows;
    for (std::int64_t number = 0; number < count; ++number) {
        FileListRow& row = rows.emplace_back();
        row[Filename] = NumberText(number * 7919 % 100003) + ".dat";
        row[Destination] = "%DESTDIR\\Mapp" + NumberText(number % 100);
        row[Size] = "12,5";
        row[Date] = "2004-03-" + NumberText(10 + number % 20);
        row[Time] = "12:30";
        row[CopyOptions] = "D";
        row[Extension] = "dat";
        row[Source] = "c:\\data\\projekt\\räknaren\\mapp\\" + row[Filename];
    }
    return rows;
}

struct Desk {
    explicit Desk(std::int64_t rowCount)
    {
        project.Files.rows = Rows(rowCount);
        SortRows(project.Files);
        history.Begin();
    }

    Project project;
    OpenProjectState state;
    ProjectHistory history{project, state};
};

void ShowMemory(benchmark::State& state, const ProjectHistory& history)
{
    state.counters["MiB"] = static_cast<double>(history.Bytes()) / (1 << 20);
}

/// What every command costs that changed no row.
void RecordNothing(benchmark::State& state)
{
    Desk desk(state.range(0));
    for (auto _ : state)
        desk.history.Record("Ingenting", Changed::SettingsAndRows);
    ShowMemory(state, desk.history);
}

void RecordPageEdit(benchmark::State& state)
{
    Desk desk(state.range(0));
    for (auto _ : state) {
        desk.project.DialogBoxes.WelcomeDlg ^= 1;
        desk.history.Record("Ändra dialogrutor", Changed::Settings);
    }
    ShowMemory(state, desk.history);
}

void ChangeARow(benchmark::State& state)
{
    Desk desk(state.range(0));
    std::int64_t step = 0;
    for (auto _ : state) {
        desk.project.Files.rows[static_cast<std::size_t>(step % state.range(0))][Destination] =
            NumberText(step);
        desk.history.Record("Ändra", Changed::SettingsAndRows);
        ++step;
    }
    ShowMemory(state, desk.history);
}

void ChangeAllRows(benchmark::State& state)
{
    Desk desk(state.range(0));
    std::int64_t step = 0;
    for (auto _ : state) {
        state.PauseTiming();
        ++step;
        for (FileListRow& row : desk.project.Files.rows)
            row[Destination] = "%DESTDIR\\" + NumberText(step);
        state.ResumeTiming();
        desk.history.Record("Ersätt", Changed::SettingsAndRows);
    }
    ShowMemory(state, desk.history);
}

void UndoAndRedoAll(benchmark::State& state)
{
    Desk desk(state.range(0));
    for (FileListRow& row : desk.project.Files.rows)
        row[Destination] = "%WINDIR";
    desk.history.Record("Ersätt", Changed::SettingsAndRows);
    for (auto _ : state) {
        desk.history.Undo();
        desk.history.Redo();
    }
    ShowMemory(state, desk.history);
}

void WithRows(benchmark::internal::Benchmark* bench)
{
    bench->Arg(3276)->Arg(32767)->Unit(benchmark::kMillisecond);
}

BENCHMARK(RecordNothing)->Apply(WithRows);
BENCHMARK(RecordPageEdit)->Apply(WithRows);
BENCHMARK(ChangeARow)->Apply(WithRows)->Iterations(500);
BENCHMARK(ChangeAllRows)->Apply(WithRows)->Iterations(20);
BENCHMARK(UndoAndRedoAll)->Apply(WithRows);

} // namespace
} // namespace quillon::bench
