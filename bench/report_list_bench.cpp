// What the alarm list costs with 1,000 and with 100,000 rows; docs/performance.md tells the figures. Runs on
// the display of the environment, or with QT_QPA_PLATFORM=offscreen without one.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QApplication>
#include <QWindow>
#include <string>

#include "receiver_ui/list/qt_report_list.h"
#include "support/qt_wait.h"

namespace {

using namespace vigrel;

constexpr int kColumns = 8;
constexpr int kTextColumn = 3;

// A list of eight columns as the default configuration has them, the last one hidden, with the arrival.
class cList {
  public:
    explicit cList(const benchmark::State& state) {
        for (int column = 0; column < kColumns - 1; ++column) m_List.AddColumn("Column", 120);
        m_List.AddColumn("CreatedTimeStamp", 0);
        m_List.OnRowHeight = [] { return 21; };
        m_List.SetFont("Arial", 10);
        SortBy(kColumns - 1);
        m_List.View().resize(1000, 600);
        m_List.View().show();
        // What is not on the screen yet is not painted.
        testing::WaitUntil([this] {
            const QWindow* window = m_List.View().windowHandle();
            return window != nullptr && window->isExposed();
        });
        const std::size_t before = mallinfo2().uordblks;
        for (auto row = state.range(0); row > 0; --row) Add();
        m_List.TakeOverRecords();
        Paint();
        m_BytesPerRow =
            static_cast<double>(mallinfo2().uordblks - before) / static_cast<double>(state.range(0));
        testing::RunEvents(200);
    }

    // What the station does with each alarm.
    void Arrive() {
        const RecordId record = Add();
        m_List.TakeOverRecords();
        m_List.SelectAndShow(record);
        m_List.ClearSelection();
    }
    void SortBy(int column) {
        m_List.ClearSortOrder();
        m_List.AddSortColumn(column, true);
        m_List.TakeOverRecords();
    }
    void Paint() {
        m_List.Redraw();
        m_List.Rows();  // answers only after what is waiting has gone to the view
        m_List.View().repaint();
        QApplication::processEvents();
    }
    cReportList& List() { return m_List; }
    double BytesPerRow() const { return m_BytesPerRow; }

  private:
    RecordId Add() {
        m_List.OnItem = Item;
        return m_List.AddRecord(std::make_shared<int>(m_Number++));
    }
    static cReportItem Item(const RecordTag& tag, int column) {
        const int number = *static_cast<const int*>(tag.get());
        cReportItem item;
        if (column == 0) item.icon = number % 8;
        if (column == kColumns - 1) item.value = 45'000.0 + number;
        if (column == 0 || column == kColumns - 1) return item;
        item.value = "Pump " + std::to_string(number % 10'007 * 7919 % 10'007) + " stopped";
        item.hasCaption = item.hasColours = true;
        item.textColour = 0xFFFFFF;
        item.backColour = 0x0000C0;
        return item;
    }

    cIconStrip m_Icons;
    cQtReportList m_List{nullptr, m_Icons};
    int m_Number = 0;
    double m_BytesPerRow = 0;
};

void AlarmPaintedAtOnce(benchmark::State& state) {
    cList list(state);
    for (auto _ : state) {
        list.Arrive();
        list.Paint();
    }
    state.counters["bytes/row"] = list.BytesPerRow();
}

// One alarm of a burst: all arrive before the event loop runs again.
void AlarmInABurst(benchmark::State& state) {
    constexpr int kBurst = 500;
    cList list(state);
    for (auto _ : state) {
        for (int i = 0; i < kBurst; ++i) list.Arrive();
        list.Paint();
    }
    state.SetItemsProcessed(state.iterations() * kBurst);
}

void PaintAll(benchmark::State& state) {
    cList list(state);
    for (auto _ : state) list.Paint();
}

void SortByTextAndBack(benchmark::State& state) {
    cList list(state);
    for (auto _ : state) {
        list.SortBy(kTextColumn);
        list.Paint();
        list.SortBy(kColumns - 1);
        list.Paint();
    }
}

void SelectAllRows(benchmark::State& state) {
    cList list(state);
    for (auto _ : state) {
        list.List().SelectAllRows();
        list.Paint();
        benchmark::DoNotOptimize(list.List().SelectedRows());
        list.List().ClearSelection();
        list.Paint();
    }
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(1000)->Arg(100'000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(AlarmPaintedAtOnce)->Apply(Sizes)->Iterations(200);
BENCHMARK(AlarmInABurst)->Apply(Sizes)->Iterations(10);
BENCHMARK(PaintAll)->Apply(Sizes);
BENCHMARK(SortByTextAndBack)->Apply(Sizes);
BENCHMARK(SelectAllRows)->Apply(Sizes);

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
