// The windows that the monkey plays with.
#include "Zoo.h"

#include "common/Translation.h"
#include "plotcells/KyBarChartRecordItem.h"
#include "plotcells/KyDragLineMinMaxRecordItem.h"
#include "plotcells/KyHistogramRecordItem.h"
#include "plotcells/KyPlotRecordReportControl.h"
#include "reportgrid/KyInPlaceEdit.h"
#include "reportgrid/KyReportRecordItemFloat.h"

#include <afxext.h>

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <filesystem>

namespace {

enum YardId { FirstGridId = 100, EditId = 200, ButtonId, ComboId, ListId, BarId, TextId };
constexpr int GridCount = 5;
constexpr int VirtualRows = 1000000;
/// The last two show an outline: records below records, and groups.
constexpr int TreeGrid = 3, GroupGrid = 4;
CRect PlaceOf(int grid) { return CRect(10, 10 + 110 * grid, 580, 115 + 110 * grid); }

constexpr DWORD ChildStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;

std::filesystem::path ProgramFolder() {
    wchar_t program[MAX_PATH] = L"";
    ::GetModuleFileName(nullptr, program, MAX_PATH);
    return std::filesystem::path(program).parent_path();
}

/// A view of nothing in particular.
class BlankView : public CView {
    DECLARE_DYNCREATE(BlankView)
protected:
    void OnDraw(CDC* dc) override {
        CRect rc;
        GetClientRect(&rc);
        dc->FillSolidRect(&rc, RGB(250, 250, 240));
    }
};
IMPLEMENT_DYNCREATE(BlankView, CView)

} // namespace

/// Owns grids of each class and one of each control of the system. Deleted with its window.
class Yard : public CFrameWnd {
public:
    Yard(Dice& dice, Heard& heard) : m_dice(dice), m_heard(heard) {}

    bool CreateYard();
    void Upkeep();
    void Tidy();
    const std::unique_ptr<CXTPReportControl>* Grids() const { return m_grids; }
    bool isMischiefAllowed = false;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void CreateGrid(int index);
    void Fill(CXTPReportControl& grid, int index);
    void AddRecord(CXTPReportControl& grid, int index, int number);
    CXTPReportRecord* MakeRecord(int index, int number);
    void ChangeOutline(CXTPReportControl& grid);
    void DoMischief(int index);
    void EditSomething(CXTPReportControl& grid);

    Dice& m_dice;
    Heard& m_heard;
    std::unique_ptr<CXTPReportControl> m_grids[GridCount];
    CEdit m_edit;
    CButton m_button;
    CComboBox m_combo;
    CListBox m_list;
    CScrollBar m_bar;
    CStatic m_text;
    CStatusBar m_statusBar;
    bool m_isInMischief = false;
};

BEGIN_MESSAGE_MAP(Yard, CFrameWnd)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

bool Yard::CreateYard() {
    if (!Create(nullptr, _T("Yard"), WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN, CRect(60, 40, 900, 640)))
        return false;
    const UINT panes[] = {ID_SEPARATOR, ID_INDICATOR_CAPS};
    m_statusBar.Create(this);
    m_statusBar.SetIndicators(panes, 2);
    m_edit.Create(ChildStyle | WS_BORDER | ES_AUTOHSCROLL, CRect(600, 10, 780, 30), this, EditId);
    m_button.Create(_T("&Button"), ChildStyle, CRect(600, 40, 700, 64), this, ButtonId);
    m_combo.Create(ChildStyle | CBS_DROPDOWN, CRect(600, 70, 780, 200), this, ComboId);
    m_list.Create(ChildStyle | LBS_NOTIFY | WS_VSCROLL, CRect(600, 110, 780, 200), this, ListId);
    m_bar.Create(ChildStyle | SBS_HORZ, CRect(600, 210, 780, 228), this, BarId);
    m_text.Create(_T("text"), WS_CHILD | WS_VISIBLE, CRect(600, 240, 780, 260), this, TextId);
    Upkeep();
    return true;
}

void Yard::Upkeep() {
    for (int i = 0; i < GridCount; ++i) {
        if (!m_grids[i] || !m_grids[i]->GetSafeHwnd())
            CreateGrid(i);
        else if (m_grids[i]->GetColumns()->GetCount() < 3 || m_grids[i]->GetRecords()->GetCount() > 400)
            CreateGrid(i);
    }
}

void Yard::Tidy() {
    MoveWindow(60, 40, 840, 600);
    for (int i = 0; i < GridCount; ++i) {
        if (m_grids[i] && m_grids[i]->GetSafeHwnd())
            m_grids[i]->MoveWindow(PlaceOf(i));
    }
}

void Yard::CreateGrid(int index) {
    static constexpr CRuntimeClass* (*Classes[GridCount])() = {
        [] { return RUNTIME_CLASS(CXTPReportControl); },         [] { return RUNTIME_CLASS(KyReportControl); },
        [] { return RUNTIME_CLASS(KyPlotRecordReportControl); }, [] { return RUNTIME_CLASS(CXTPReportControl); },
        [] { return RUNTIME_CLASS(KyPlotRecordReportControl); },
    };
    m_grids[index].reset();
    m_grids[index].reset(static_cast<CXTPReportControl*>(Classes[index]()->CreateObject()));
    CXTPReportControl& grid = *m_grids[index];
    grid.Create(ChildStyle, PlaceOf(index), this, FirstGridId + index);
    for (int i = 0; i < 5; ++i) {
        CString name;
        name.Format(_T("Column %d"), i);
        auto* column = new CXTPReportColumn(i, name, 60 + 50 * i);
        column->SetMinWidth(10 * i);
        grid.AddColumn(column);
    }
    grid.AllowEdit((index != 0 && index != TreeGrid) || m_dice.OneIn(2));
    if (index == TreeGrid)
        grid.GetColumns()->GetAt(m_dice.Below(2))->SetTreeColumn(TRUE);
    if (index == GroupGrid)
        grid.GetColumns()->GetGroupsOrder()->Add(grid.GetColumns()->GetAt(1), m_dice.OneIn(2));
    if (index == GroupGrid && m_dice.OneIn(2))
        grid.GetColumns()->GetGroupsOrder()->Add(grid.GetColumns()->GetAt(0), m_dice.OneIn(2));
    grid.EnablePreviewMode(index != 2 && m_dice.OneIn(2));
    grid.ShowGroupBy(m_dice.OneIn(2));
    grid.SetFreezeColumnsCount(m_dice.Below(3));
    grid.GetReportHeader()->SetAutoColumnSizing(m_dice.OneIn(3));
    if (index == 2)
        grid.SetInplaceEdit(new KyInPlaceEdit);
    if (auto* chooser = dynamic_cast<KyReportControl*>(&grid))
        chooser->EnableShowHideColumns({L"Column 0"});
    Fill(grid, index);
}

void Yard::Fill(CXTPReportControl& grid, int index) {
    if (index == 1 && m_dice.OneIn(2)) {
        grid.SetVirtualMode(MakeRecord(index, 0), VirtualRows);
    } else {
        for (int i = m_dice.Between(0, 60); i > 0; --i)
            AddRecord(grid, index, i);
    }
    grid.Populate();
}

/// In a tree below one that is there, or beside it.
void Yard::AddRecord(CXTPReportControl& grid, int index, int number) {
    CXTPReportRecords* records = grid.GetRecords();
    while (index == TreeGrid && records->GetCount() > 0 && !m_dice.OneIn(3))
        records = records->GetAt(m_dice.Below(records->GetCount()))->GetChilds();
    records->Add(MakeRecord(index, number))->SetExpanded(m_dice.OneIn(2));
}

/// Every kind of plot in turn, most of them bars.
KyPlotRecordItem* MakePlot(int number) {
    const auto middle = static_cast<float>(number % 10);
    if (number % 5 == 3) {
        auto* const slider = number % 2 ? new KyDragLineRecordItem : new KyDragLineMinMaxRecordItem;
        slider->SetTargetValues(middle, 0, 10);
        slider->SetLimitValues({{2, RGB(0, 128, 0)}, {8, RGB(128, 0, 0)}});
        slider->ShowLimits(true);
        return slider;
    }
    if (number % 5 == 4) {
        auto* const histogram = new KyHistogramRecordItem;
        std::vector<double> bins(static_cast<std::size_t>(number * 37 % 1000));
        for (std::size_t bin = 0; bin < bins.size(); ++bin)
            bins[bin] = static_cast<double>(bin * bin % 17);
        histogram->SetError(middle, middle - 3, middle + 3, bins, 0, 10);
        return histogram;
    }
    auto* const bar = new KyBarChartRecordItem;
    bar->SetError(middle, 0, 10, middle - 2, middle + 2, middle - 3, middle + 3, -99, -99);
    return bar;
}

CXTPReportRecord* Yard::MakeRecord(int index, int number) {
    auto* record = new CXTPReportRecord;
    CString text;
    text.Format(_T("text %d of a record"), number * 7 % 31);
    auto* link = new CXTPReportRecordItemText(text);
    link->AddHyperlink(new CXTPReportHyperlink(0, 4));
    link->SetTooltip(_T("a tip"));
    record->AddItem(link);
    if (number % 2)
        record->AddItem(new CXTPReportRecordItemNumber(number % 13));
    else
        record->AddItem(new KyReportRecordItemFloat(static_cast<float>(number % 13), 10, 2));
    auto* const plot = MakePlot(number);
    plot->m_valueChanged.connect([this, index](float, float, float) {
        ++m_heard.draggedValues;
        DoMischief(index);
    });
    record->AddItem(plot);
    record->AddItem(new CXTPReportRecordItemText(_T("wide wide wide wide wide wide wide wide wide")));
    if (number % 3 != 0)
        record->SetPreviewItem(new CXTPReportRecordItemPreview(CString(_T("words below the cells "), number % 23) +
                                                               CString(_T('x'), number % 50) +
                                                               _T("\nand more\nof them")));
    return record;
}

BOOL Yard::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    for (int i = 0; i < GridCount; ++i) {
        if (header && m_grids[i] && header->hwndFrom == m_grids[i]->GetSafeHwnd()) {
            ++m_heard.notifications;
            DoMischief(i);
        }
    }
    return CFrameWnd::OnNotify(wParam, lParam, result);
}

void Yard::EditSomething(CXTPReportControl& grid) {
    if (grid.GetRows()->GetCount() == 0 || grid.GetColumns()->GetCount() == 0)
        return;
    XTP_REPORTRECORDITEM_ARGS args;
    args.pRow = grid.GetRows()->GetAt(m_dice.Below(grid.GetRows()->GetCount()));
    args.pColumn = grid.GetColumns()->GetAt(m_dice.Below(grid.GetColumns()->GetCount()));
    grid.EditItem(&args);
}

void Yard::ChangeOutline(CXTPReportControl& grid) {
    const int count = grid.GetRows()->GetCount();
    CXTPReportRow* const row = count > 0 ? grid.GetRows()->GetAt(m_dice.Below(count)) : nullptr;
    switch (m_dice.Below(5)) {
    case 0:
        grid.ExpandAll();
        break;
    case 1:
        grid.CollapseAll();
        break;
    case 2:
        grid.SetFilterText(m_dice.OneIn(2) ? L"" : L"text 1");
        grid.Populate();
        break;
    case 3:
        if (row && row->GetRecord() && !grid.IsVirtualMode())
            row->GetRecord()->Delete();
        break;
    default:
        if (row)
            row->SetExpanded(!row->IsExpanded());
        break;
    }
}

/// What an owner may do while it is told of something.
void Yard::DoMischief(int index) {
    if (!isMischiefAllowed || m_isInMischief || !m_grids[index] || !m_dice.OneIn(6))
        return;
    m_isInMischief = true;
    ++m_heard.mischief;
    CXTPReportControl& grid = *m_grids[index];
    switch (m_dice.Below(19)) {
    case 0:
        m_grids[index].reset();
        break;
    case 1:
        grid.DestroyWindow();
        break;
    case 2:
        grid.ResetContent();
        break;
    case 3:
        if (grid.GetRecords()->GetCount() > 0)
            grid.GetRecords()->RemoveAt(m_dice.Below(grid.GetRecords()->GetCount()));
        break;
    case 4:
        Fill(grid, index);
        break;
    case 5:
        if (grid.GetColumns()->GetCount() > 0)
            grid.GetColumns()->Remove(grid.GetColumns()->GetAt(m_dice.Below(grid.GetColumns()->GetCount())));
        break;
    case 6:
        grid.GetColumns()->Clear();
        break;
    case 7:
        m_edit.SetFocus();
        break;
    case 8:
        ::ReleaseCapture();
        break;
    case 9:
        grid.SetMultipleSelection(m_dice.OneIn(2));
        break;
    case 10:
        grid.SetReportHeader(new CXTPReportHeader(&grid, grid.GetColumns()));
        break;
    case 11:
        grid.AllowEdit(m_dice.OneIn(2));
        break;
    case 12:
        EditSomething(grid);
        break;
    case 13:
        grid.EnablePreviewMode(!grid.IsPreviewMode());
        break;
    case 14:
        grid.ShowGroupBy(!grid.IsGroupByVisible());
        break;
    case 15:
        grid.SetFreezeColumnsCount(m_dice.Below(4));
        break;
    case 16:
        grid.GetReportHeader()->SetAutoColumnSizing(m_dice.OneIn(2));
        break;
    case 17:
        ChangeOutline(grid);
        break;
    default:
        ::MessageBox(m_hWnd, _T("mischief"), _T("Yard"), MB_OK);
        break;
    }
    m_isInMischief = false;
}

void Yard::OnDestroy() {
    for (auto& grid : m_grids)
        grid.reset();
    CFrameWnd::OnDestroy();
}

// --- Zoo ------------------------------------------------------------------------------------------------------------

Zoo::Zoo(Dice& dice) : m_dice(dice) { Upkeep(); }

Zoo::~Zoo() {
    AllowMischief(false);
    for (const HWND window : {m_profiler, m_yard, m_documents}) {
        if (::IsWindow(window))
            ::DestroyWindow(window);
    }
    if (m_dialogGrid)
        m_dialogGrid->DestroyWindow();
    if (m_dialog)
        m_dialog->DestroyWindow();
    AfxGetApp()->m_pMainWnd = nullptr;
}

void Zoo::Upkeep() {
    MSG message; // the end of a main window asks the program to end
    while (::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
    }
    if (!Profiler())
        CreateProfiler();
    if (!::IsWindow(m_yard))
        CreateYard();
    if (!::IsWindow(m_documents))
        CreateDocuments();
    if (!m_dialog || !m_dialog->GetSafeHwnd())
        CreateModelessDialog();
    if (auto* yard = dynamic_cast<Yard*>(CWnd::FromHandlePermanent(m_yard)))
        yard->Upkeep();
    for (const HWND window : Windows()) {
        ::SendMessage(window, WM_SETREDRAW, TRUE, 0);
        ::EnableWindow(window, TRUE);
    }
    ::ShowWindow(m_profiler, SW_SHOWNOACTIVATE);
    ::ShowWindow(m_yard, SW_SHOWNOACTIVATE);
}

void Zoo::Tidy() {
    Upkeep();
    ::MoveWindow(m_profiler, 20, 20, 1100, 600, TRUE);
    if (auto* yard = dynamic_cast<Yard*>(CWnd::FromHandlePermanent(m_yard)))
        yard->Tidy();
    if (ProfilerFrame* frame = Profiler())
        frame->RecalcLayout();
}

ProfilerFrame* Zoo::Profiler() const {
    return ::IsWindow(m_profiler) ? dynamic_cast<ProfilerFrame*>(CWnd::FromHandlePermanent(m_profiler)) : nullptr;
}

void Zoo::CreateProfiler() {
    auto* frame = new ProfilerFrame; // deleted with its window
    AfxGetApp()->m_pMainWnd = frame;
    frame->CreateFrame();
    m_profiler = frame->GetSafeHwnd();
    ::ShowWindow(m_profiler, SW_SHOWNORMAL);
    OpenShipped();
    AwaitReading();
}

void Zoo::RestartProfiler() {
    if (Profiler())
        ::SendMessage(m_profiler, WM_CLOSE, 0, 0);
    if (m_dice.OneIn(2))
        SetLanguage(nullptr, nullptr);
    else
        SetLanguage(L"de", (ProgramFolder() / L"locale").c_str());
    Upkeep();
}

void Zoo::OpenShipped() {
    const std::filesystem::path folder(PROFILER_DATA_DIR);
    if (ProfilerFrame* frame = Profiler())
        frame->OpenPath((folder / m_dice.Of({L"penguins.csv", L"seattle-weather.csv"})).c_str());
}

void Zoo::AwaitReading() const {
    constexpr WPARAM ReadingTimer = 1; // the frame looks at its progress, and shows what is read
    // While the mouse is captured, or a number is being typed, the frame does not take the file.
    const auto isBusy = [](const ProfilerFrame& frame) {
        const auto* const grid = dynamic_cast<CXTPReportControl*>(frame.GetDlgItem(AFX_IDW_PANE_FIRST));
        return ::GetCapture() != nullptr || (grid && grid->GetActiveItem());
    };
    for (ProfilerFrame* frame = Profiler(); frame && frame->IsReading() && !isBusy(*frame); frame = Profiler()) {
        ::Sleep(1);
        ::SendMessage(m_profiler, WM_TIMER, ReadingTimer, 0);
    }
}

void Zoo::AllowMischief(bool allow) {
    if (auto* yard = ::IsWindow(m_yard) ? dynamic_cast<Yard*>(CWnd::FromHandlePermanent(m_yard)) : nullptr)
        yard->isMischiefAllowed = allow;
}

void Zoo::CreateYard() {
    auto* yard = new Yard(m_dice, m_heard); // deleted with its window
    yard->CreateYard();
    m_yard = yard->GetSafeHwnd();
}

void Zoo::CreateDocuments() {
    auto* frame = new CXTPMDIFrameWnd; // deleted with its window
    frame->Create(nullptr, _T("Documents"), WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(300, 200, 800, 600));
    frame->InitCommandBars();
    m_documents = frame->GetSafeHwnd();
    for (const LPCTSTR title : {_T("one"), _T("two")}) {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(BlankView);
        auto* child = new CMDIChildWnd; // deleted with its window
        child->Create(nullptr, title, WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, frame,
                      &context);
        child->InitialUpdateFrame(nullptr, TRUE);
    }
}

void Zoo::CreateModelessDialog() {
    // A template without controls; they are made as children afterwards.
    struct {
        DLGTEMPLATE header;
        WORD menu, windowClass, title;
    } dialog = {{WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU, 0, 0, 200, 150, 200, 120}, 0, 0, 0};
    m_dialogGrid.reset();
    m_dialog = std::make_unique<CDialog>();
    m_dialog->CreateIndirect(&dialog.header, nullptr);
    m_dialogGrid = std::make_unique<CXTPReportControl>();
    m_dialogGrid->Create(ChildStyle, CRect(5, 5, 280, 150), m_dialog.get(), FirstGridId);
    m_dialogGrid->AddColumn(new CXTPReportColumn(0, _T("only"), 100));
    m_dialogGrid->Populate();
}

std::vector<CXTPReportControl*> Zoo::Grids() const {
    std::vector<CXTPReportControl*> grids;
    for (const HWND window : Windows()) {
        if (auto* grid = dynamic_cast<CXTPReportControl*>(CWnd::FromHandlePermanent(window)))
            grids.push_back(grid);
    }
    return grids;
}

/// The same for the same window in every run: what it is and whose, from the outermost inwards.
std::vector<std::uintptr_t> Zoo::PlaceInZoo(HWND window) const {
    std::vector<std::uintptr_t> place;
    const auto last = reinterpret_cast<std::uintptr_t>(window);
    const HWND tops[] = {m_profiler, m_yard, m_documents, m_dialog ? m_dialog->GetSafeHwnd() : nullptr};
    while (window && window != ::GetDesktopWindow()) {
        const auto top = std::find(std::begin(tops), std::end(tops), window);
        const bool isChild = (::GetWindowLong(window, GWL_STYLE) & WS_CHILD) != 0;
        const int id = isChild ? ::GetDlgCtrlID(window) : static_cast<int>(top - std::begin(tops));
        place.insert(place.begin(), static_cast<std::uintptr_t>(static_cast<unsigned>(id)));
        window = isChild ? ::GetAncestor(window, GA_PARENT) : ::GetWindow(window, GW_OWNER);
    }
    place.push_back(last);
    return place;
}

std::vector<HWND> Zoo::Windows() const {
    std::vector<HWND> windows;
    const auto add = [](HWND window, LPARAM list) -> BOOL {
        if (CWnd::FromHandlePermanent(window))
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
    };
    std::vector<HWND> tops;
    ::EnumThreadWindows(::GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&tops));
    for (const HWND top : tops) {
        windows.push_back(top);
        ::EnumChildWindows(top, add, reinterpret_cast<LPARAM>(&windows));
    }
    // Which one is in front is a matter of time.
    std::sort(windows.begin(), windows.end(), [this](HWND a, HWND b) { return PlaceInZoo(a) < PlaceInZoo(b); });
    return windows;
}

bool IsSystemControl(HWND window) {
    wchar_t name[64] = L"";
    ::GetClassName(window, name, 64);
    for (const wchar_t* known : {L"Edit", L"Button", L"ComboBox", L"ComboLBox", L"ListBox", L"ScrollBar", L"Static",
                                 L"MDIClient", L"msctls_statusbar32", L"tooltips_class32"}) {
        if (::_wcsicmp(name, known) == 0)
            return true;
    }
    return false;
}
