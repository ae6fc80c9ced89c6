// What a million records cost in a report control without a window: time to add, populate and sort, memory per record.
#include <XTToolkitPro.h>

#include "report/RecordItemHeap.h"

#include <psapi.h>

#include <chrono>
#include <cstdio>

namespace {

constexpr int RecordCount = 1'000'000;

/// Runs the step and prints how long it took.
template <class Step>
void Measure(const char* name, Step step) {
    const auto begin = std::chrono::steady_clock::now();
    step();
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    std::printf("%-58s %8.3f s\n", name, seconds.count());
    std::fflush(stdout);
}

std::size_t PrivateBytes() {
    PROCESS_MEMORY_COUNTERS counters = {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
    return counters.PagefileUsage;
}

void AddRecords(CXTPReportControl& control) {
    CString name;
    for (int i = 0; i < RecordCount; ++i) {
        // Neither sorted nor repeating: multiplication by a number prime to the count.
        const int mixed = static_cast<int>(i * 611953LL % RecordCount);
        name.Format(_T("Row %06d"), mixed);
        auto* const record = new CXTPReportRecord;
        record->AddItem(new CXTPReportRecordItemText(name));
        record->AddItem(new CXTPReportRecordItemNumber(mixed * 0.5, _T("%.1f")));
        record->AddItem(new CXTPReportRecordItemNumber(i % 1000, _T("%g")));
        control.AddRecord(record);
    }
}

void SortBy(CXTPReportControl& control, int column, BOOL increasing) {
    control.GetColumns()->SetSortColumn(control.GetColumns()->GetAt(column), increasing);
    control.Populate();
}

} // namespace

int main() {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL))
        return 1;
    CXTPReportControl control;
    for (const wchar_t* name : {L"Name", L"Value", L"Group"})
        control.AddColumn(new CXTPReportColumn(control.GetColumns()->GetCount(), name, 100));

    const std::size_t before = PrivateBytes();
    Measure("add a million records of three items", [&] { AddRecords(control); });
    Measure("populate", [&] { control.Populate(); });
    std::printf("%-58s %8.1f bytes\n", "per record, with items and rows (process)",
                static_cast<double>(PrivateBytes() - before) / RecordCount);
    std::printf("%-58s %8.1f bytes\n", "per record, with items (record-item heap)",
                static_cast<double>(recorditemheap::GetUsage().bytes) / RecordCount);

    Measure("populate again", [&] { control.Populate(); });
    Measure("sort by number", [&] { SortBy(control, 1, TRUE); });
    Measure("sort by number, other direction", [&] { SortBy(control, 1, FALSE); });
    Measure("sort by text", [&] { SortBy(control, 0, TRUE); });
    Measure("sort by number, then by text", [&] {
        control.GetColumns()->ResetSortOrder();
        control.GetColumns()->GetSortOrder()->Add(control.GetColumns()->GetAt(2), TRUE);
        control.GetColumns()->GetSortOrder()->Add(control.GetColumns()->GetAt(0), TRUE);
        control.Populate();
    });
    Measure("populate with every second row selected", [&] {
        RowSelection everySecond;
        for (int row = 0; row < RecordCount; row += 2)
            everySecond.Add(row, row);
        control.GetSelectedRows()->SetRanges(everySecond);
        control.Populate();
    });
    Measure("delete a thousand records from the middle", [&] {
        for (int i = 0; i < 1000; ++i)
            control.GetRecords()->RemoveAt(RecordCount / 2);
    });
    Measure("remove all records", [&] { control.ResetContent(); });
    std::printf("%-58s %8zu\n", "items left alive", recorditemheap::LiveItems());
    return 0;
}
