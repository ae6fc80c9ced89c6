// How fast the report grid draws, scrolls and answers, beside the system's list view and a bare loop of GDI calls that
// show the same picture. Each figure is the median of several rounds; the contenders take turns, so that a passing load
// of the machine meets all of them.
#include "DrawingCalls.h"
#include "GridContender.h"
#include "Measure.h"
#include "RecordBench.h"
#include "Results.h"

#include <plotcells/KyHistogramRecordItem.h>

#include <cstdio>
#include <cstring>
#include <cwchar>
#include <functional>
#include <vector>

namespace {

constexpr int Rounds = 9;
constexpr int ScrolledRows = 1'000'000;
constexpr int ManyRows = 10'000'000;
constexpr int FewRows = 1000;
constexpr int Updates = 100'000;

constexpr Results::Unit Microseconds{"µs", 0};
constexpr Results::Unit FineMicroseconds{"µs", 2};
constexpr Results::Unit Milliseconds{"ms", 1};
constexpr Results::Unit Ratio{"", 2};
constexpr Results::Unit Plain{"", 0};

using Step = std::function<void(Contender&, int)>;

/// What is compared, and how often a round does it.
struct Comparison {
    int count;
    Step step;
    std::function<void(Contender&)> before = [](Contender&) {};
    std::function<void(Contender&)> after = [](Contender&) {};
};

/// The median of the step's time for each contender. The first round only warms up.
std::vector<double> Compare(const std::vector<Contender*>& contenders, const Comparison& comparison,
                            int rounds = Rounds) {
    std::vector<std::vector<double>> times(contenders.size());
    for (int round = 0; round <= rounds; ++round) {
        for (std::size_t i = 0; i < contenders.size(); ++i) {
            Contender& contender = *contenders[i];
            contender.Window().GetTopLevelParent()->BringWindowToTop();
            Contender::Pump();
            contender.Repaint();
            comparison.before(contender);
            const double time = measure::Microseconds(comparison.count, [&](int n) { comparison.step(contender, n); });
            comparison.after(contender);
            if (round > 0)
                times[i].push_back(time);
        }
    }
    std::vector<double> medians;
    for (const auto& each : times)
        medians.push_back(measure::Median(each));
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

// --- Measurements ----------------------------------------------------------------------------------------------------

/// The most that our time may be of the others'; 0 for no target.
struct Limits {
    double toList = 0;
    double toBare = 0;
};

std::string RatioText(double ratio, double limit) {
    const std::string text = NumberText(ratio, Ratio);
    return limit > 0 ? text + " (≤ " + NumberText(limit, Ratio) + ")" : text;
}

/// The line of three times in microseconds: grid, list view, bare loop.
void Tell(Results& results, const std::string& name, const std::vector<double>& times, Limits limits,
          Results::Unit unit = Microseconds) {
    const double toList = times[0] / times[1];
    const double toBare = times[0] / times[2];
    std::optional<bool> met;
    if (limits.toList > 0 || limits.toBare > 0)
        met = (limits.toList == 0 || toList <= limits.toList) && (limits.toBare == 0 || toBare <= limits.toBare);
    results.Line(name,
                 {NumberText(times[0], unit), NumberText(times[1], unit), NumberText(times[2], unit),
                  RatioText(toList, limits.toList), RatioText(toBare, limits.toBare)},
                 met);
}

/// Drawing operations of one repaint.
double CallsOfRepaint(Contender& contender) {
    contender.Repaint();
    const std::uint64_t before = drawingcalls::Count();
    contender.Repaint();
    return static_cast<double>(drawingcalls::Count() - before);
}

void CompareDrawing(Results& results, const std::vector<Contender*>& contenders) {
    Tell(results, "full repaint", Compare(contenders, {20, [](Contender& each, int) { each.Repaint(); }}), {0.8, 1.2});
    std::vector<double> calls;
    for (Contender* const each : contenders)
        calls.push_back(CallsOfRepaint(*each));
    Tell(results, "drawing operations of a full repaint", calls, {}, Plain);
    Tell(results, "one mouse move of a drag, painted",
         Compare(contenders, {100, [](Contender& each, int step) { each.MoveOfDrag(step); },
                              [](Contender& each) { each.BeginDrag(); }, [](Contender& each) { each.EndDrag(); }}),
         {0.8, 0});
}

void CompareScrolling(Results& results, const std::vector<Contender*>& contenders) {
    int start = 0;
    const auto times = Compare(
        contenders, {40, [](Contender& each, int) { each.PageDown(); },
                     [&start](Contender& each) { each.GoToRow(start = (start + 37'813) % (ScrolledRows - 10'000)); }});
    Tell(results, "a page of 1,000,000 virtual rows", times, {1 / 1.5, 0});
    const double frames[] = {1e6 / times[0], 1e6 / times[1], 1e6 / times[2]};
    results.Line("pages per second",
                 {NumberText(frames[0], Plain), NumberText(frames[1], Plain), NumberText(frames[2], Plain),
                  RatioText(frames[0] / frames[1], 0) + " (≥ 1.50)", RatioText(frames[0] / frames[2], 0)});
}

/// Points all over the rows.
CPoint HitPoint(int n) { return CPoint(n * 37 % 1150, 40 + n * 13 % 740); }

void CompareAnswers(Results& results, const std::vector<Contender*>& contenders) {
    // A bare loop knows nothing that could be asked.
    const auto ask = [&](const char* name, int count, const Step& step, Results::Unit unit) {
        const auto times = Compare({contenders[0], contenders[1]}, {count, step});
        results.Line(name, {NumberText(times[0], unit), NumberText(times[1], unit), "–",
                            RatioText(times[0] / times[1], 0), "–"});
    };
    ask(
        "hit test", 20'000, [](Contender& each, int n) { each.HitTest(HitPoint(n)); }, FineMicroseconds);
    ask(
        "best fit of the names", 1, [](Contender& each, int) { each.BestFit(); }, Microseconds);
    constexpr int rounds = 1; // the system's answers take seconds
    const auto updates = Compare(contenders,
                                 {1,
                                  [](Contender& each, int) {
                                      for (int n = 0; n < Updates; ++n)
                                          each.Update(n);
                                      each.Show();
                                  }},
                                 rounds);
    Tell(results, "100,000 cell updates, each asking for a redraw", updates, {});
}

/// The ways in which a host changes 100,000 cells and gets them on the screen.
void MeasureUpdates(Results& results, GridContender& contender) {
    CXTPReportControl& grid = contender.Grid();
    const auto measureWay = [&](const char* name, const std::function<void()>& way) {
        std::vector<double> times;
        for (int round = 0; round <= Rounds; ++round) {
            Contender::Pump();
            times.push_back(measure::Microseconds(1, [&](int) {
                way();
                contender.Show();
            }));
        }
        results.AtMost(std::string("100,000 cell updates, ") + name, measure::Median(times) / 1000, 300, Milliseconds);
    };
    const auto forAll = [&contender](const std::function<void(int)>& afterEach) {
        for (int n = 0; n < Updates; ++n) {
            contender.SetNumber(n);
            afterEach(n);
        }
    };
    const int visible = grid.GetFullyVisibleRowCount();
    measureWay("`RedrawControl` after each", [&] { forAll([&](int) { grid.RedrawControl(); }); });
    measureWay("`RedrawRow` after each, of 1,000 rows", [&] {
        forAll(
            [&](int n) { grid.RedrawRow(grid.GetRows()->Find(grid.GetRecords()->GetAt(n % Contender::RecordRows))); });
    });
    measureWay("`RedrawRow` after each, of the rows in view", [&] {
        for (int n = 0; n < Updates; ++n) {
            contender.SetNumber(n % visible);
            grid.RedrawRow(grid.GetRows()->GetAt(n % visible));
        }
    });
    measureWay("one `RedrawControl` at the end", [&] {
        forAll([](int) {});
        grid.RedrawControl();
    });
    measureWay("one `Populate` at the end", [&] {
        forAll([](int) {});
        grid.Populate();
    });
    measureWay("`RedrawControl` after each between `SetRedraw` off and on", [&] {
        grid.SetRedraw(FALSE);
        forAll([&](int) { grid.RedrawControl(); });
        grid.SetRedraw(TRUE);
        grid.Invalidate(FALSE);
    });
}

void MeasureHitTest(Results& results, GridContender& contender) {
    std::vector<double> times;
    for (int round = 0; round <= Rounds; ++round)
        times.push_back(measure::Microseconds(20'000, [&](int n) { contender.HitTest(HitPoint(n)); }));
    results.AtMost("hit test of row, cell and column", measure::Median(times), 1, FineMicroseconds);
}

void MeasureManyRows(Results& results, GridContender& contender) {
    const auto frame = [&contender](int rows) {
        contender.SetVirtualRows(rows);
        contender.GoToRow(rows / 2);
        Contender::Pump();
        contender.Repaint();
        return measure::Microseconds(20, [&](int) { contender.Repaint(); });
    };
    std::vector<double> few, many;
    double fewCalls = 0, manyCalls = 0;
    for (int round = 0; round <= Rounds; ++round) {
        few.push_back(frame(FewRows));
        fewCalls = CallsOfRepaint(contender);
        many.push_back(frame(ManyRows));
        manyCalls = CallsOfRepaint(contender);
    }
    results.Inform("a frame at 1,000 virtual rows", measure::Median(few), Microseconds);
    results.Inform("a frame at 10,000,000 virtual rows", measure::Median(many), Microseconds);
    results.AtMost("ratio of the two", measure::Median(many) / measure::Median(few), 1.1, Ratio);
    results.Inform("drawing operations of a frame at 1,000 virtual rows", fewCalls, Plain);
    results.Inform("drawing operations of a frame at 10,000,000 virtual rows", manyCalls, Plain);
    results.AtMost("ratio of the two", manyCalls / fewCalls, 1.1, Ratio);
}

/// A viewport with other plots, and what they cost beside the same drawn with GDI.
void ComparePlots(Results& results) {
    using benchpicture::Plot;
    for (const int bins : {40, 200}) {
        const benchpicture::Picture picture{{Plot::Histogram, Plot::Slider, Plot::MinMax}, bins};
        GridContender grid(Rows::Records, Contender::RecordRows, picture);
        const auto bare = MakeBareContender(grid.Grid().GetHeaderRect().Height(), picture);
        const auto list = MakeListViewContender(Contender::RecordRows, picture);
        char heading[100], says[150];
        std::snprintf(heading, sizeof heading, "Histogram of %d bins, slider, and slider with its ends in each row",
                      bins);
        std::snprintf(says, sizeof says, "Pixels of the plots that differ from ours: %d (list view), %d (bare loop).",
                      DifferentPixels(grid, *list), DifferentPixels(grid, *bare));
        results.Begin(heading,
                      {"median", "our grid", "list view", "bare loop", "ours / list view", "ours / bare loop", ""});
        const std::vector<Contender*> contenders = {&grid, list.get(), bare.get()};
        Tell(results, "full repaint", Compare(contenders, {20, [](Contender& each, int) { each.Repaint(); }}),
             {0.8, 1.3});
        Tell(results, "one mouse move of a drag, painted",
             Compare(contenders, {100, [](Contender& each, int step) { each.MoveOfDrag(step); },
                                  [](Contender& each) { each.BeginDrag(); }, [](Contender& each) { each.EndDrag(); }}),
             {0.8, 0});
        results.Say(says);
    }
}

/// A histogram cell that is drawn outside of a grid.
class DrawnHistogram : public KyHistogramRecordItem {
public:
    explicit DrawnHistogram(int bins) {
        SetError(50, 0, 100, benchpicture::BinsOf(0, bins), 0, 100);
        m_args.pControl = &m_control;
        m_args.rcItem.SetRect(0, 0, benchpicture::ColumnWidths[2], benchpicture::RowHeight);
    }
    void DrawInto(CDC& dc) {
        m_args.pDC = &dc;
        OnDrawCaption(&m_args, nullptr);
    }

private:
    CXTPReportControl m_control;
    XTP_REPORTRECORDITEM_DRAWARGS m_args;
};

/// What one histogram cell costs, with few bins and with many more than it has pixels.
void MeasureBins(Results& results) {
    constexpr int draws = 2000;
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(info.bmiHeader), 400, -benchpicture::RowHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    CBitmap bitmap;
    bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap* const former = dc.SelectObject(&bitmap);
    DrawnHistogram few(40), some(200), many(5000);
    std::vector<double> times[3];
    for (int round = 0; round <= Rounds; ++round) {
        int i = 0;
        for (DrawnHistogram* const each : {&few, &some, &many})
            times[i++].push_back(measure::Microseconds(draws, [&](int) { each->DrawInto(dc); }));
    }
    dc.SelectObject(former);
    results.Inform("a histogram of 40 bins drawn", measure::Median(times[0]), FineMicroseconds);
    results.Inform("a histogram of 200 bins drawn", measure::Median(times[1]), FineMicroseconds);
    results.Inform("a histogram of 5,000 bins drawn", measure::Median(times[2]), FineMicroseconds);
    results.AtMost("ratio of the last two", measure::Median(times[2]) / measure::Median(times[1]), 2, Ratio);
}

/// Whether the list view is that of version 6, which lives in a folder of its own.
bool IsListViewNew() {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(::GetModuleHandleW(L"comctl32.dll"), path, MAX_PATH);
    return std::wcsstr(path, L"winsxs") != nullptr;
}

void RunPlots(Results& results) {
    ComparePlots(results);
    results.Begin("A histogram cell alone", {"median", "figure", "at most", ""});
    MeasureBins(results);
}

void Run(Results& results) {
    GridContender grid(Rows::Records, Contender::RecordRows);
    const auto bare = MakeBareContender(grid.Grid().GetHeaderRect().Height());
    const auto list = MakeListViewContender(Contender::RecordRows);
    drawingcalls::StartCounting();
    char says[200];
    std::snprintf(says, sizeof(says),
                  "List view: common controls %s. Pixels of the plots that differ from ours: %d (list view), %d (bare "
                  "loop).",
                  IsListViewNew() ? "version 6" : "before version 6", DifferentPixels(grid, *list),
                  DifferentPixels(grid, *bare));
    results.Say(says);

    results.Begin("Grid, list view and bare loop",
                  {"median", "our grid", "list view", "bare loop", "ours / list view", "ours / bare loop", ""});
    CompareDrawing(results, {&grid, list.get(), bare.get()});
    GridContender virtualGrid(Rows::Virtual, ScrolledRows);
    {
        const auto longList = MakeListViewContender(ScrolledRows);
        CompareScrolling(results, {&virtualGrid, longList.get(), bare.get()});
    }
    CompareAnswers(results, {&grid, list.get(), bare.get()});

    RunPlots(results);
    results.Begin("Grid alone", {"median", "figure", "at most", ""});
    MeasureHitTest(results, grid);
    MeasureUpdates(results, grid);
    virtualGrid.Window().GetTopLevelParent()->BringWindowToTop();
    MeasureManyRows(results, virtualGrid);
}

} // namespace

/// With the argument "plots" only the viewports with other plots than bars are measured.
int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL))
        return 1;
    ::SetConsoleOutputCP(CP_UTF8);
    Results results;
    if (argc > 1 && std::strcmp(argv[1], "plots") == 0) {
        RunPlots(results);
    } else {
        Run(results);
        recordbench::Run(results);
    }
    results.Say(results.Verdict());
    return results.AllMet() ? 0 : 1;
}
