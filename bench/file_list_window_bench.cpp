// What the window's file list takes with as many rows as a project can hold, against a tenth of
// them: showing the rows with the first paint, selecting all, a sort by a click, a step of the
// arrow key.
#include "app/MainForm.h"
#include "app/file_list/FileListView.h"
#include "filelist/view/sort.h"
#include "support/one_file_host.h"

#include <QApplication>
#include <QHeaderView>
#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

class Desk {
public:
    explicit Desk(std::int64_t rowCount)
    {
        for (std::int64_t number = 0; number < rowCount; ++number) {
            FileListRow row;
            row[Filename] = NumberText(number * 7919 % 100003) + ".dat";
            row[Destination] = "%DESTDIR\\Mapp" + NumberText(number % 100);
            row[Size] = "12,5";
            row[Date] = "2004-03-" + NumberText(10 + number % 20);
            row[Time] = "12:30";
            row[CopyOptions] = "D";
            row[Source] = "c:\\data\\" + row[Filename];
            rows.push_back(row);
        }
        session.project.Files.rows = rows;
        SortRows(session.project.Files);
        form.resize(1000, 700);
        form.show();
        QApplication::processEvents();
        list = form.findChild<FileListView*>("ListViewFiles");
    }

    void Paint() { list->viewport()->repaint(); }

    std::vector<FileListRow> rows;
    test::OneFile files{"some bytes"};
    test::PlainMachine machine;
    test::SilentUser user;
    Host host{files, machine};
    Session session = NewSession(host, user, "C:\\Quillon");
    MainForm form{session};
    FileListView* list = nullptr;
};

void ShowRows(benchmark::State& state)
{
    Desk desk(state.range(0));
    for (auto _ : state) {
        desk.form.ShowFileList({});
        desk.Paint();
    }
}

void SelectAll(benchmark::State& state)
{
    Desk desk(state.range(0));
    for (auto _ : state) {
        desk.list->selectAll();
        desk.Paint();
        desk.list->clearSelection();
    }
}

void SortWithAllSelected(benchmark::State& state)
{
    Desk desk(state.range(0));
    desk.list->selectAll();
    for (auto _ : state) {
        desk.list->onColumnClick("Destination");
        desk.list->onColumnClick("Filnamn");
        desk.Paint();
    }
}

void StepWithTheArrowKey(benchmark::State& state)
{
    Desk desk(state.range(0));
    int row = 0;
    for (auto _ : state) {
        desk.list->setCurrentIndex(desk.list->model()->index(row++ % 100, 0));
        desk.Paint();
    }
}

void SelectEverySecondRow(benchmark::State& state)
{
    Desk desk(state.range(0));
    std::vector<std::size_t> selected;
    for (std::size_t row = 0; row < desk.rows.size(); row += 2)
        selected.push_back(row);
    for (auto _ : state) {
        desk.form.ShowFileList(selected);
        desk.Paint();
    }
}

void WithRows(benchmark::internal::Benchmark* bench)
{
    bench->Arg(3276)->Arg(32767)->Unit(benchmark::kMillisecond);
}

BENCHMARK(ShowRows)->Apply(WithRows);
BENCHMARK(SelectAll)->Apply(WithRows);
BENCHMARK(SortWithAllSelected)->Apply(WithRows);
BENCHMARK(StepWithTheArrowKey)->Apply(WithRows);
BENCHMARK(SelectEverySecondRow)->Apply(WithRows);

} // namespace
} // namespace quillon::bench

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
