// How fast the report grid draws, scrolls and answers, beside the system's list view and a bare loop of GDI calls that
// show the same picture. Each figure is the median of several rounds; the contenders take turns, so that a passing load
// of the machine meets all of them.
#include "GridContender.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cwchar>
#include <functional>
#include <vector>

namespace {

constexpr int Rounds = 9;
constexpr int RecordRows = 1000;
constexpr int ScrolledRows = 1'000'000;
constexpr int ManyRows = 10'000'000;
constexpr int FewRows = 1000;
constexpr int Updates = 100'000;

/// Microseconds that one of `count` runs of the step takes on average.
template <class Step>
double MicrosecondsOf(int count, Step step) {
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < count; ++i)
        step(i);
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begin).count() / count;
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The median of the step's time for each contender. The first round only warms up.
std::vector<double> Compare(
    const std::vector<Contender*>& contenders, int count, const std::function<void(Contender&, int)>& step,
    const std::function<void(Contender&)>& before = [](Contender&) {},
    const std::function<void(Contender&)>& after = [](Contender&) {}) {
    std::vector<std::vector<double>> times(contenders.size());
    for (int round = 0; round <= Rounds; ++round) {
        for (std::size_t i = 0; i < contenders.size(); ++i) {
            Contender& contender = *contenders[i];
            contender.Window().GetTopLevelParent()->BringWindowToTop();
            Contender::Pump();
            contender.Repaint();
            before(contender);
            const double time = MicrosecondsOf(count, [&](int n) { step(contender, n); });
            after(contender);
            if (round > 0)
                times[i].push_back(time);
        }
    }
    std::vector<double> medians;
    for (const auto& each : times)
        medians.push_back(Median(each));
    return medians;
}

// --- The picture -----------------------------------------------------------------------------------------------------

/// The pixels of a part of a window as they stand on the screen.
std::vector<std::uint32_t> PixelsOf(CWnd& window, const CRect& rc) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(info.bmiHeader), rc.Width(), -rc.Height(), 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    CBitmap bitmap;
    bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    CClientDC dc(&window);
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    CBitmap* const former = memory.SelectObject(&bitmap);
    memory.BitBlt(0, 0, rc.Width(), rc.Height(), &dc, rc.left, rc.top, SRCCOPY);
    ::GdiFlush();
    const auto* const pixels = static_cast<const std::uint32_t*>(bits);
    std::vector<std::uint32_t> copy(pixels, pixels + static_cast<std::size_t>(rc.Width()) * rc.Height());
    memory.SelectObject(former);
    for (std::uint32_t& pixel : copy)
        pixel &= 0xFFFFFFu;
    return copy;
}

/// How many pixels of the plots of the first rows differ between two contenders.
int DifferentPixels(Contender& a, Contender& b) {
    constexpr int comparedRows = 20;
    int different = 0;
    const auto pixels = [](Contender& contender, int row, int bar) {
        CRect rc = contender.BarRect(row, bar);
        rc.DeflateRect(1, 1); // the plot; around it, the list view has its grid lines elsewhere
        return PixelsOf(contender.Window(), rc);
    };
    for (int row = 0; row < comparedRows; ++row) {
        for (int bar = 0; bar < benchpicture::BarCount; ++bar) {
            a.Window().GetTopLevelParent()->BringWindowToTop();
            a.Repaint();
            const auto first = pixels(a, row, bar);
            b.Window().GetTopLevelParent()->BringWindowToTop();
            b.Repaint();
            const auto second = pixels(b, row, bar);
            if (first.size() != second.size())
                return static_cast<int>(first.size());
            for (std::size_t i = 0; i < first.size(); ++i)
                different += first[i] != second[i];
        }
    }
    return different;
}

// --- The table -------------------------------------------------------------------------------------------------------

constexpr const char* Unit = "µs";

void PrintComparison(const char* name, const std::vector<double>& times, double toList, double toBare) {
    std::printf("%-30s %9.0f %9.0f %9.0f   %6.2f (<= %.2f)", name, times[0], times[1], times[2], times[0] / times[1],
                toList);
    std::printf("   %6.2f", times[0] / times[2]);
    if (toBare > 0)
        std::printf(" (<= %.2f)", toBare);
    std::printf("\n");
    std::fflush(stdout);
}

void PrintAlone(const char* name, double value, const char* unit, double target) {
    std::printf("%-46s %12.3f %s (<= %g)\n", name, value, unit, target);
    std::fflush(stdout);
}

// --- Measurements ----------------------------------------------------------------------------------------------------

void CompareDrawing(const std::vector<Contender*>& contenders) {
    PrintComparison("full repaint", Compare(contenders, 20, [](Contender& each, int) { each.Repaint(); }), 0.8, 1.2);
    const auto moves = Compare(
        contenders, 100, [](Contender& each, int step) { each.MoveOfDrag(step); },
        [](Contender& each) { each.BeginDrag(); }, [](Contender& each) { each.EndDrag(); });
    PrintComparison("one move of a drag", moves, 0.8, 0);
}

void CompareScrolling(const std::vector<Contender*>& contenders) {
    int start = 0;
    const auto times = Compare(
        contenders, 40, [](Contender& each, int) { each.PageDown(); },
        [&start](Contender& each) { each.GoToRow(start = (start + 37'813) % (ScrolledRows - 10'000)); });
    PrintComparison("a page of 1,000,000 rows", times, 1 / 1.5, 0);
    std::printf("%-30s %9.1f %9.1f %9.1f\n", "  frames per second", 1e6 / times[0], 1e6 / times[1], 1e6 / times[2]);
}

void MeasureAnswers(GridContender& contender) {
    CXTPReportControl& grid = contender.Grid();
    int hits = 0;
    std::vector<double> tests, fits, updates;
    for (int round = 0; round <= Rounds; ++round) {
        tests.push_back(MicrosecondsOf(20'000, [&](int n) {
            const CPoint point(n * 37 % 1150, 40 + n * 13 % 740);
            CRect rc;
            CXTPReportColumn* column = nullptr;
            if (const CXTPReportRow* row = grid.HitTest(point))
                hits += row->HitTest(point, &rc, &column) != nullptr;
        }));
        fits.push_back(MicrosecondsOf(1, [&](int) { hits += grid.GetColumns()->GetAt(0)->GetBestFitWidth(); }));
    }
    PrintAlone(hits > 0 ? "hit test" : "hit test (hit nothing)", Median(tests), Unit, 1);
    PrintAlone("best fit of a column", Median(fits) / 1000, "ms", 50);

    const CXTPReportRecords* const records = grid.GetRecords();
    for (int round = 0; round <= Rounds; ++round) {
        updates.push_back(MicrosecondsOf(1, [&](int) {
            for (int n = 0; n < Updates; ++n) {
                CXTPReportRecordItem* const item = records->GetAt(n % records->GetCount())->GetItem(1);
                static_cast<CXTPReportRecordItemNumber*>(item)->SetValue(n);
                grid.RedrawControl();
            }
            contender.Show();
        }));
    }
    PrintAlone("100,000 cell updates, each asking for a redraw", Median(updates) / 1000, "ms", 300);
}

void MeasureManyRows(GridContender& contender) {
    const auto measure = [&contender](int rows, double& calls) {
        contender.SetVirtualRows(rows);
        contender.GoToRow(rows / 2);
        Contender::Pump();
        contender.Repaint();
        const int before = GridContender::DrawCalls();
        const double time = MicrosecondsOf(20, [&](int) { contender.Repaint(); });
        calls = (GridContender::DrawCalls() - before) / 20.0;
        return time;
    };
    std::vector<double> few, many;
    double fewCalls = 0, manyCalls = 0;
    for (int round = 0; round <= Rounds; ++round) {
        few.push_back(measure(FewRows, fewCalls));
        many.push_back(measure(ManyRows, manyCalls));
    }
    std::printf("%-46s %12.0f %s, %.0f cells drawn\n", "a frame at 1,000 virtual rows", Median(few), Unit, fewCalls);
    std::printf("%-46s %12.0f %s, %.0f cells drawn\n", "a frame at 10,000,000 virtual rows", Median(many), Unit,
                manyCalls);
    PrintAlone("  ratio", Median(many) / Median(few), "", 1.1);
}

/// Whether the list view is that of version 6, which lives in a folder of its own.
bool IsListViewNew() {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(::GetModuleHandleW(L"comctl32.dll"), path, MAX_PATH);
    return std::wcsstr(path, L"winsxs") != nullptr;
}

void Run() {
    GridContender grid(Rows::Records, RecordRows);
    const auto bare = MakeBareContender(grid.Grid().GetHeaderRect().Height());
    const auto list = MakeListViewContender(RecordRows);
    std::printf("list view: common controls %s; plot pixels that differ: %d (list view), %d (bare loop)\n\n",
                IsListViewNew() ? "version 6" : "before version 6", DifferentPixels(grid, *list),
                DifferentPixels(grid, *bare));
    std::printf("%-30s %9s %9s %9s   %-17s   %s\n", "median, microseconds", "grid", "list view", "bare loop",
                "grid/list view", "grid/bare loop");
    CompareDrawing({&grid, list.get(), bare.get()});

    GridContender virtualGrid(Rows::Virtual, ScrolledRows);
    const auto longList = MakeListViewContender(ScrolledRows);
    CompareScrolling({&virtualGrid, longList.get(), bare.get()});

    std::printf("\n");
    MeasureAnswers(grid);
    virtualGrid.Window().GetTopLevelParent()->BringWindowToTop();
    MeasureManyRows(virtualGrid);
}

} // namespace

int main() {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL))
        return 1;
    ::SetConsoleOutputCP(CP_UTF8);
    Run();
    return 0;
}
