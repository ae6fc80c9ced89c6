// What it costs to export a report grid as HTML: output per second and memory beside the result.
#include "Measure.h"
#include "Results.h"

#include <plotcells/KyBarChartRecordItem.h>
#include <reportgrid/KyReportControlHelpers.h>

#include <cstdio>
#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

constexpr Results::Unit Megabytes{"MB", 1};
constexpr Results::Unit MegabytesPerSecond{"MB/s", 1};
constexpr Results::Unit Milliseconds{"ms", 3};
constexpr Results::Unit Ratio{"", 2};
constexpr double Mega = 1e6;
constexpr int RecordCount = 100'000;
constexpr int ItemCount = 10;

class BenchApp : public CWinApp {
public:
    BenchApp() : CWinApp(L"Export benchmark") {}
};
BenchApp theApplication;

/// What tables hold: names, numbers, remarks that need escaping, cells that are empty, some of them coloured.
CXTPReportRecordItem* MakeItem(int record, int item) {
    CString text;
    switch (item % 5) {
    case 0:
        text.Format(L"Record number %d of many", record);
        return new CXTPReportRecordItemText(text);
    case 1:
        return new CXTPReportRecordItemNumber(record * 1.0625 / 7, L"%.2f");
    case 2:
        text.Format(L"a remark <%d> & more", record % 1000);
        return new CXTPReportRecordItemText(text);
    case 3:
        return new CXTPReportRecordItemNumber(record % 3 ? record : -99.0, L"%.0f");
    default: {
        auto* const coloured = new CXTPReportRecordItemText(record % 2 ? L"Gr\u00F6\u00DFe" : L"");
        coloured->SetBackgroundColor(RGB(255, 255, 200));
        return coloured;
    }
    }
}

void Fill(CXTPReportControl& grid) {
    for (int i = 0; i < ItemCount; ++i)
        grid.AddColumn(new CXTPReportColumn(i, L"Column", 80));
    for (int record = 0; record < RecordCount; ++record) {
        CXTPReportRecord* const added = grid.AddRecord(new CXTPReportRecord);
        for (int item = 0; item < ItemCount; ++item)
            added->AddItem(MakeItem(record, item));
    }
}

void MeasureTexts(Results& results) {
    CXTPReportControl grid;
    Fill(grid);
    const std::size_t before = measure::WorkingBytes();
    std::string html = KyReportControlHelpers::SaveAsHtml(grid, L"");
    const double beside = static_cast<double>(measure::PeakBytes()) - static_cast<double>(before + html.size());
    const double size = static_cast<double>(html.size()) / Mega;
    html = std::string();
    std::vector<double> times;
    for (int round = 0; round < 5; ++round)
        times.push_back(measure::Microseconds(1, [&](int) { KyReportControlHelpers::SaveAsHtml(grid, L""); }) / 1e6);
    const double speed = size / measure::Median(times);
    results.Begin("100,000 records of ten cells as HTML", {"median", "figure", "target", ""});
    results.Inform("output", size, Megabytes);
    results.Line("output each second", {NumberText(speed, MegabytesPerSecond), "at least 40 MB/s"}, speed >= 40);
    results.Line("memory beside the result, at most", {NumberText(beside / Mega, Megabytes), "10 MB"},
                 beside <= 10 * Mega);
}

/// A cell drawn and written by itself, and the same in a table; the two take turns.
void MeasurePlots(Results& results) {
    constexpr int count = 200;
    CXTPReportControl grid;
    std::vector<KyBarChartRecordItem*> bars;
    for (int i = 0; i < count; ++i) {
        bars.push_back(new KyBarChartRecordItem);
        bars.back()->SetError(50, 0, 100, 30, 70, 20, 80, -99, -99);
        grid.AddRecord(new CXTPReportRecord)->AddItem(bars.back());
    }
    const fs::path folder = fs::temp_directory_path() / L"export bench";
    fs::create_directories(folder);
    std::vector<double> alone, inTable;
    for (int round = 0; round < 7; ++round) {
        alone.push_back(measure::Microseconds(count,
                                              [&](int i) {
                                                  bars[i]->SaveAs(
                                                      grid, (folder / (L"a" + std::to_wstring(i) + L".bmp")).c_str(),
                                                      400, 22);
                                              }) /
                        1000);
        inTable.push_back(
            measure::Microseconds(1, [&](int) { KyReportControlHelpers::SaveAsHtml(grid, (folder / L"t").c_str()); }) /
            1000 / count);
    }
    fs::remove_all(folder);
    const double ratio = measure::Median(inTable) / measure::Median(alone);
    results.Begin("Plot cells", {"median", "figure", "target", ""});
    results.Inform("a cell drawn and written to its file", measure::Median(alone), Milliseconds);
    results.Inform("the same in a table", measure::Median(inTable), Milliseconds);
    results.Line("ratio of the two", {NumberText(ratio, Ratio), "at most 1.5"}, ratio <= 1.5);
}

} // namespace

int main() {
    if (!AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_SHOWNORMAL))
        return 2;
    Results results;
    MeasureTexts(results); // first, for the peak of the memory
    MeasurePlots(results);
    results.Say(results.Verdict());
    return results.AllMet() ? 0 : 1;
}
