// A host with all that a program of several windows has to see to: a layout that is kept, themes that reach every
// window, the user's language, tool tips, limits that the user drags.
#include <common/KyMessages.h>
#include <common/Translation.h>
#include <plotcells/KyBarChartRecordItem.h>
#include <plotcells/KyPlotRecordReportControl.h>
#include <reportgrid/KyInPlaceEdit.h>
#include <themes/Themes.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr UINT FirstThemeCommand = 0x8000; // below are the framework's own and dialog controls

struct ThemeChoice {
    KyPaintTheme theme;
    LPCTSTR stored; ///< what the profile holds
    LPCTSTR shown;
};
constexpr ThemeChoice Choices[] = {
    {KyPaintTheme::Office2003, _T("Office2003"), _T("Office &2003")},
    {KyPaintTheme::Office2010Blue, _T("Office2010Blue"), _T("Office 2010 &Blue")},
    {KyPaintTheme::Office2013, _T("Office2013"), _T("&Office 2013")},
    {KyPaintTheme::Windows7Blue, _T("Windows7Blue"), _T("&Windows 7")},
};
constexpr UINT LastThemeCommand = FirstThemeCommand + std::size(Choices) - 1;

/// A bar that tells the value under the pointer.
class ReadingCell : public KyBarChartRecordItem {
public:
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) override {
        OnMouseMove(0, point, nullptr); // the grid asks for the tip before the move reaches the cell
        const CString text = GetInfoTip();
        if (text.IsEmpty())
            return -1;
        tool->rect = GetItemRect();
        tool->lpszText = _tcsdup(text); // the grid frees it
        return 0;
    }
};

/// The grid knows its columns and rows, and nothing of the window around it.
class ReadingsGrid : public KyPlotRecordReportControl {
public:
    void SetUp() {
        // The second text is the column's identity in saved layouts: it is neither shown nor translated.
        AddColumn(new CXTPReportColumn(0, _T("Sensor"), _T("sensor"), 140));
        AddColumn(new CXTPReportColumn(1, _T("Range"), _T("range"), 320));
        auto* limits = new CXTPReportColumn(2, _T("Limits"), _T("limits"), 120);
        limits->SetAlignment(DT_RIGHT);
        AddColumn(limits);
        AllowEdit(TRUE); // sensors can be renamed, and nothing else can be typed
        for (int i = 1; i < GetColumns()->GetCount(); ++i)
            GetColumns()->GetAt(i)->SetEditable(FALSE);
        SetInplaceEdit(new KyInPlaceEdit);    // Enter goes on to the next row, as in a spreadsheet
        EnableShowHideColumns({L"sensor"});   // the chooser offers all columns but this
        AutoLoadReportState(L"ReadingsGrid"); // after the columns: they are the default layout
    }

    void AddReading(LPCTSTR sensor, float minimum, float lower, float target, float upper, float maximum) {
        CXTPReportRecord* record = AddRecord(new CXTPReportRecord);
        record->AddItem(new CXTPReportRecordItemText(sensor));
        auto* cell = new ReadingCell;
        cell->SetError(target, minimum, maximum, lower, upper, -99, -99, -99, -99);
        cell->SetDistribution(KyBarChartRecordItem::DistributionTarget, true); // the ends move one by one
        record->AddItem(cell);
        auto* limits = new CXTPReportRecordItemText;
        record->AddItem(limits);
        ShowLimits(limits, lower, upper);

        // A position that was not dragged arrives as -99, so the connection remembers both.
        cell->m_valueChanged.connect([this, limits, lower, upper](float newLower, float, float newUpper) mutable {
            lower = IsMissing(newLower) ? lower : newLower;
            upper = IsMissing(newUpper) ? upper : newUpper;
            ShowLimits(limits, lower, upper);
            RedrawControl();
        });
    }

private:
    static void ShowLimits(CXTPReportRecordItemText* item, float lower, float upper) {
        CString text;
        text.Format(_T("%.1f \x2026 %.1f"), lower, upper);
        item->SetValue(text);
    }
};

class ReadingsFrame : public CFrameWnd {
protected:
    int OnCreate(LPCREATESTRUCT create) {
        if (CFrameWnd::OnCreate(create) == -1)
            return -1;
        // The frame gives its free room to the child with this identifier.
        if (!m_grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(), this, AFX_IDW_PANE_FIRST))
            return -1;
        m_grid.SetUp();
        m_grid.AddReading(_T("Inlet"), 0, 12, 21, 30, 40);
        m_grid.AddReading(_T("Boiler"), 20, 40, 62, 78, 90);
        m_grid.AddReading(_T("Return"), 10, 22, 38, 50, 60);
        m_grid.Populate();

        CMenu bar, themes;
        themes.CreatePopupMenu();
        for (UINT i = 0; i < std::size(Choices); ++i)
            themes.AppendMenu(MF_STRING, FirstThemeCommand + i, Choices[i].shown);
        bar.CreateMenu();
        bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(themes.Detach()), _T("&Theme"));
        SetMenu(&bar);
        bar.Detach(); // menus belong to the window now
        return 0;
    }

    /// Keeps the choice and tells it to the main window, which is this one.
    void OnTheme(UINT command) {
        const ThemeChoice& choice = Choices[command - FirstThemeCommand];
        AfxGetApp()->WriteProfileString(_T("Settings"), _T("RibbonTheme"), choice.stored);
        SendMessage(WM_KYTHEMECHANGED, static_cast<WPARAM>(choice.theme));
    }

    void OnUpdateTheme(CCmdUI* command) {
        command->SetRadio(Choices[command->m_nID - FirstThemeCommand].theme == Themes::GetProfileTheme());
    }

    /// Only the main window is told of a new theme; its descendants follow when it hands the message on.
    LRESULT OnThemeChanged(WPARAM theme, LPARAM lParam) {
        SendMessageToDescendants(WM_KYTHEMECHANGED, theme, lParam);
        return 0;
    }

    /// A sensor without a name keeps the one it has.
    void OnRequestOrChange(NMHDR* header, LRESULT*) {
        const auto* edited = reinterpret_cast<const XTP_NM_REPORTRECORDITEM*>(header);
        const CString name = edited->pItem ? edited->pItem->GetCaption(edited->pColumn) : CString();
        if (header->code == XTP_NM_REPORT_REQUESTEDIT)
            m_nameBefore = name;
        else if (name.IsEmpty() && edited->pItem)
            static_cast<CXTPReportRecordItemText*>(edited->pItem)->SetValue(m_nameBefore);
    }

    void OnSetFocus(CWnd*) { m_grid.SetFocus(); }
    DECLARE_MESSAGE_MAP()

private:
    ReadingsGrid m_grid; // its destructor saves the layout
    CString m_nameBefore;
};

BEGIN_MESSAGE_MAP(ReadingsFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
    ON_COMMAND_RANGE(FirstThemeCommand, LastThemeCommand, &ReadingsFrame::OnTheme)
    ON_UPDATE_COMMAND_UI_RANGE(FirstThemeCommand, LastThemeCommand, &ReadingsFrame::OnUpdateTheme)
    ON_MESSAGE(WM_KYTHEMECHANGED, &ReadingsFrame::OnThemeChanged)
    ON_NOTIFY(XTP_NM_REPORT_REQUESTEDIT, AFX_IDW_PANE_FIRST, &ReadingsFrame::OnRequestOrChange)
    ON_NOTIFY(XTP_NM_REPORT_VALUECHANGED, AFX_IDW_PANE_FIRST, &ReadingsFrame::OnRequestOrChange)
END_MESSAGE_MAP()

class ReadingsApp : public CWinApp {
    BOOL InitInstance() override {
        SetRegistryKey(_T("My Company")); // before the first grid: it reads theme and layout from there
        SetLanguage(UserLanguage(), ProgramFolder() + _T("locale"));

        auto* frame = new ReadingsFrame;
        if (!frame->Create(nullptr, _T("Readings"), WS_OVERLAPPEDWINDOW, CRect(100, 100, 740, 330)))
            return FALSE;
        m_pMainWnd = frame;
        frame->ShowWindow(m_nCmdShow);
        return TRUE;
    }

    /// The language of the user's Windows, as catalogues are named; those there are stand in the locale folder.
    static CString UserLanguage() {
        wchar_t name[LOCALE_NAME_MAX_LENGTH] = {};
        ::GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH);
        return CString(name).Left(2);
    }

    static CString ProgramFolder() {
        wchar_t path[MAX_PATH] = {};
        ::GetModuleFileName(nullptr, path, MAX_PATH);
        const CString program(path);
        return program.Left(program.ReverseFind(_T('\\')) + 1);
    }
} theApp;

} // namespace
