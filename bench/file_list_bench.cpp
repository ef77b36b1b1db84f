// How the work on a file list grows with its length. Four times the rows may take at most five
// times as long.
#include "filelist/adding/add_file.h"
#include "filelist/view/sort.h"
#include "helpers/number_text.h"
#include "support/one_file_host.h"

#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

FileToAdd FileNumber(std::int64_t number)
{
    // Spread over the alphabet, so that a sorted list grows in all places.
    const Text name = NumberText(number * 7919 % 100003) + ".dat";
    const Text folder = "C:\\Data\\Mapp" + NumberText(number % 100);
    return {.FileName = name,
            .SourcePath = folder + "\\" + name,
            .Destination = "%DESTDIR\\" + NumberText(number % 100),
            .CheckDuplicates = true};
}

void AddFiles(benchmark::State& state, bool sorted)
{
    test::OneFile files("some bytes");
    test::PlainMachine machine;
    test::SilentUser user;
    FileList list;
    list.sorted = sorted;
    for (auto _ : state) {
        state.PauseTiming(); // adding is measured, not taking the rows away again
        list.rows = {};
        state.ResumeTiming();
        FileAdding adding(list, {files, machine}, user);
        for (std::int64_t number = 0; number < state.range(0); ++number)
            adding.AddFileToFileList(FileNumber(number));
        adding.Finish();
        if (list.rows.size() != static_cast<std::size_t>(state.range(0)))
            state.SkipWithError("rows are missing");
    }
}

void Sort(benchmark::State& state)
{
    FileList list;
    for (std::int64_t number = 0; number < state.range(0); ++number) {
        FileListRow& row = list.rows.emplace_back();
        row[Filename] = FileNumber(number).FileName;
        row[Destination] = FileNumber(number).Destination;
    }
    for (auto _ : state) {
        SortRowsBy(list, Destination);
        SortRowsBy(list, Filename);
    }
}

BENCHMARK_CAPTURE(AddFiles, ToSortedList, true)
    ->Arg(8000)
    ->Arg(32000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AddFiles, ToUnsortedList, false)
    ->Arg(8000)
    ->Arg(32000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Sort)->Arg(8000)->Arg(32000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon::bench
