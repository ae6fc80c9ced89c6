// What the tests of robustness share, and the entry point of their program.
#include "Rig.h"

#include "report/RecordItemHeap.h"

#include "../../framework/core/HandleCounts.h"

#include <cstdlib>
#include <cwchar>

namespace {

constexpr wchar_t company[] = L"Ky Controls Robustness Tests";

RobustnessApp theApp;

void Replace(LPCTSTR& text, const wchar_t* by) {
    std::free(const_cast<LPTSTR>(text));
    text = by ? _wcsdup(by) : nullptr;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM count) {
    ++*reinterpret_cast<long*>(count);
    ::EnumChildWindows(
        window,
        [](HWND, LPARAM inner) -> BOOL {
            ++*reinterpret_cast<long*>(inner);
            return TRUE;
        },
        count);
    return TRUE;
}

} // namespace

RobustnessApp::RobustnessApp() : CWinApp(L"Robustness") {}

RobustnessApp& RobustnessApp::Get() { return theApp; }

void RobustnessApp::UseRegistry() {
    SetRegistryKey(company);
    RemoveProfile();
}

void RobustnessApp::UseIniFile() {
    wchar_t folder[MAX_PATH] = L"";
    ::GetTempPathW(MAX_PATH, folder);
    Replace(m_pszRegistryKey, nullptr);
    Replace(m_pszProfileName, CString(folder) + L"robustness_tests.ini");
    RemoveProfile();
}

void RobustnessApp::RemoveProfile() {
    if (m_pszRegistryKey)
        ::RegDeleteTreeW(HKEY_CURRENT_USER, CString(L"Software\\") + company);
    else
        ::DeleteFileW(m_pszProfileName);
}

int RobustnessApp::DoMessageBox(LPCTSTR, UINT, UINT) {
    ++boxes;
    return IDOK;
}

bool IsLong() {
    const char* const wanted = std::getenv("KY_ROBUSTNESS");
    return wanted != nullptr && std::string(wanted) == "long";
}

int Repetitions(int longRun, int slice) { return IsLong() ? longRun : slice; }

Counts::Counts() : m_values{} {
    using handlecounts::Kind;
    constexpr int first = static_cast<int>(calltable::Kind::Count);
    for (int kind = 0; kind < first; ++kind)
        m_values[kind] = calltable::Open(static_cast<calltable::Kind>(kind));
    long windows = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), &CountWindow, reinterpret_cast<LPARAM>(&windows));
    const long own[OwnCounters] = {windows,
                                   static_cast<long>(recorditemheap::LiveItems()),
                                   static_cast<long>(recorditemheap::LiveRecords()),
                                   handlecounts::Live(Kind::GdiObject),
                                   handlecounts::Live(Kind::DeviceContext),
                                   handlecounts::Live(Kind::Window),
                                   handlecounts::Live(Kind::Menu)};
    std::copy(std::begin(own), std::end(own), m_values.begin() + first);
}

const char* Counts::NameOf(int counter) {
    constexpr int first = static_cast<int>(calltable::Kind::Count);
    constexpr const char* own[OwnCounters] = {"window",
                                              "record item",
                                              "record",
                                              "framework's GDI object",
                                              "framework's device context",
                                              "framework's window",
                                              "framework's menu"};
    return counter < first ? calltable::NameOf(static_cast<calltable::Kind>(counter)) : own[counter - first];
}

long Counts::Of(std::string_view name) const {
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        if (NameOf(static_cast<int>(i)) == name)
            return m_values[i];
    }
    return -1;
}

std::string Counts::ChangesSince(const Counts& former) const {
    std::string text;
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        if (m_values[i] != former.m_values[i])
            text += std::string(NameOf(static_cast<int>(i))) + " " + std::to_string(former.m_values[i]) + " -> " +
                    std::to_string(m_values[i]) + "; ";
    }
    return text;
}

void BecomeIdle() {
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message != WM_QUIT)
            ::DispatchMessage(&message);
    }
    theApp.OnIdle(1);
}

// --- The grid --------------------------------------------------------------------------------------------------------

void RemovePictures(const std::wstring& prefix) {
    WIN32_FIND_DATAW found;
    const HANDLE search = ::FindFirstFileW((prefix + L"_*.bmp").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    const std::wstring folder = prefix.substr(0, prefix.find_last_of(L"\\/") + 1);
    do
        ::DeleteFileW((folder + found.cFileName).c_str());
    while (::FindNextFileW(search, &found));
    ::FindClose(search);
}

GridRig::GridRig(bool visible) : m_visible(visible) {
    ::SetCursorPos(5, 5); // no window of the test is there
    Create();
}

GridRig::~GridRig() { Destroy(); }

void GridRig::Create() {
    owner.CreateEx(0, AfxRegisterWndClass(0), L"Robustness", WS_POPUP | (m_visible ? WS_VISIBLE : 0),
                   CRect(100, 100, 540, 375), nullptr, 0);
    theApp.m_pMainWnd = &owner;
    grid = new Grid;
    grid->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 420, 255), &owner, 42);
    Fill();
    Paint();
    BecomeIdle();
}

void GridRig::Destroy() {
    if (grid) {
        grid->DestroyWindow();
        delete grid;
        grid = nullptr;
    }
    owner.DestroyWindow();
    theApp.m_pMainWnd = nullptr;
    BecomeIdle();
}

template <class Plot>
Plot* GridRig::AddPlot() {
    CXTPReportRecord* const record = grid->AddRecord(new CXTPReportRecord);
    record->AddItem(new CXTPReportRecordItemText(L"Another plot"));
    record->AddItem(new KyReportRecordItemFloat(0, 100, 50)); // red
    auto* const plot = new Plot;
    record->AddItem(plot);
    return plot;
}

void GridRig::Fill() {
    grid->AddColumn(new CXTPReportColumn(0, L"Name", L"name", 100));
    grid->AddColumn(new CXTPReportColumn(1, L"Number", L"number", 80));
    grid->AddColumn(new CXTPReportColumn(2, L"Bar", L"bar", 220));
    for (int i = 0; i < 8; ++i) {
        // What one makes has its owner before the next is made.
        CXTPReportRecord* const record = grid->AddRecord(new CXTPReportRecord);
        CXTPReportRecordItem* const text =
            record->AddItem(new CXTPReportRecordItemText(i % 2 ? L"A longer text that is cut off" : L"Text"));
        if (i == 1)
            text->AddHyperlink(new CXTPReportHyperlink(0, 1));
        record->AddItem(new CXTPReportRecordItemNumber(10.0 * i + 0.25, L"%.3f"));
        auto* const bar = new KyBarChartRecordItem;
        record->AddItem(bar);
        const auto at = static_cast<float>(i);
        bar->SetError(50, 0, 100, 30 - at, 70 + at, 20, 80, 10, 90);
        bar->SetDistribution(static_cast<KyBarChartRecordItem::EDistribution>(i % 3), i < 6);
        if (i == 7)
            bar->SetError(50, 0, 100, -90, -80, -99, -99, -99, -99); // "<<<"
    }
    for (const std::size_t bins : {12, 1000}) {
        auto* const histogram = AddPlot<KyHistogramRecordItem>();
        std::vector<double> counts(bins);
        for (std::size_t bin = 0; bin < bins; ++bin)
            counts[bin] = static_cast<double>(bin * 7 % 12);
        histogram->SetError(50, 20, 80, counts, 0, 100);
    }
    auto* const slider = AddPlot<KyDragLineRecordItem>();
    slider->SetTargetValues(50, 0, 100);
    slider->SetLimitValues({{25, RGB(0, 128, 0)}, {75, RGB(0, 128, 0)}});
    slider->ShowLimits(true);
    auto* const scale = AddPlot<KyDragLineMinMaxRecordItem>();
    scale->SetTargetValues(50, 0, 100);
    grid->Populate();
    SelectThirdRow();
}

void GridRig::SelectThirdRow() {
    grid->GetSelectedRows()->Clear();
    grid->SetFocusedRow(grid->GetRows()->GetAt(2));
}

void GridRig::Paint() {
    grid->RedrawControl();
    grid->UpdateWindow();
}

std::vector<std::uint32_t> GridRig::Picture() {
    CRect rc;
    ::GetClientRect(grid->m_hWnd, &rc);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(info.bmiHeader), rc.right, -rc.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HDC window = ::GetDC(grid->m_hWnd);
    const HDC memory = ::CreateCompatibleDC(window);
    const HBITMAP bitmap = ::CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ former = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, rc.right, rc.bottom, window, 0, 0, SRCCOPY);
    ::GdiFlush();
    const auto* const pixels = static_cast<const std::uint32_t*>(bits);
    std::vector<std::uint32_t> picture(pixels, pixels + static_cast<std::size_t>(rc.right) * rc.bottom);
    for (std::uint32_t& pixel : picture)
        pixel &= 0x00FFFFFF;
    ::SelectObject(memory, former);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(grid->m_hWnd, window);
    return picture;
}

KyBarChartRecordItem& GridRig::Bar(int row) {
    return static_cast<KyBarChartRecordItem&>(*grid->GetRows()->GetAt(row)->GetRecord()->GetItem(2));
}

CRect GridRig::BarRect(int row) { return Bar(row).GetItemRect(); }

CPoint GridRig::HeaderOf(int column) { return grid->GetColumns()->GetAt(column)->GetRect().CenterPoint(); }

std::string GridRig::ColumnsAsText() {
    std::string text;
    CXTPReportColumns& columns = *grid->GetColumns();
    for (int i = 0; i < columns.GetCount(); ++i) {
        const CString name = columns.GetAt(i)->GetInternalName();
        text += std::string(name.GetString(), name.GetString() + name.GetLength()) + " " +
                std::to_string(columns.GetAt(i)->GetWidth()) + (columns.GetAt(i)->IsVisible() ? "+ " : "- ");
    }
    return text + "sorted by " + std::to_string(columns.GetSortOrder()->GetCount());
}

void GridRig::Mouse(UINT message, CPoint point) {
    const WPARAM buttons = message == WM_LBUTTONUP || message == WM_RBUTTONUP ? 0 : MK_LBUTTON;
    ::SendMessageW(grid->m_hWnd, message, buttons, MAKELPARAM(point.x, point.y));
}

int main(int argc, char** argv) {
    calltable::Install();
    calltable::TellCrashes();
    ::testing::InitGoogleTest(&argc, argv);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL))
        return 1;
    theApp.UseRegistry();
    const int result = RUN_ALL_TESTS();
    theApp.RemoveProfile();
    return result;
}
